// SPDX-License-Identifier: LGPL-2.1-or-later
#ifndef UTILS_TESTS_MODALDIALOGDRIVER_H
#define UTILS_TESTS_MODALDIALOGDRIVER_H

#include <QApplication>
#include <QDeadlineTimer>
#include <QTimer>
#include <QWidget>

#include <functional>
#include <memory>

namespace TestSupport {

/*!
    Drives the next modal dialog headlessly: polls the event loop until
    QApplication::activeModalWidget() is a widget of type \a Dialog (any modal
    widget when Dialog is QWidget), then calls \a action with it. The action fills
    the dialog and accepts or rejects it. Call before the code that opens the
    dialog with exec(); native dialogs must be off (Qt::AA_DontUseNativeDialogs).
    Popup menus are driven the same way with \a find = QApplication::activePopupWidget.

    Returns a flag that turns true once the action ran, so a test can check that
    the dialog really appeared. Gives up silently after \a timeoutMs.
*/
template<typename Dialog = QWidget>
std::shared_ptr<bool> whenModal(std::function<void(Dialog *)> action, int timeoutMs = 5000,
                                QWidget *(*find)() = &QApplication::activeModalWidget)
{
    auto handled = std::make_shared<bool>(false);
    auto deadline = std::make_shared<QDeadlineTimer>(timeoutMs);
    auto poll = std::make_shared<std::function<void()>>();
    *poll = [=]() {
        if (auto *dialog = qobject_cast<Dialog *>(find())) {
            *handled = true;
            action(dialog);
            return;
        }
        if (!deadline->hasExpired())
            QTimer::singleShot(10, *poll);
    };
    QTimer::singleShot(0, *poll);
    return handled;
}

} // namespace TestSupport

#endif // UTILS_TESTS_MODALDIALOGDRIVER_H
