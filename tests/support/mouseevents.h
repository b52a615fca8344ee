// SPDX-License-Identifier: LGPL-2.1-or-later
#ifndef UTILS_TESTS_MOUSEEVENTS_H
#define UTILS_TESTS_MOUSEEVENTS_H

#include <QApplication>
#include <QMouseEvent>
#include <QWidget>

namespace TestSupport {

/*!
    A mouse move to \a pos on \a target with \a buttons held, delivered as the
    window system would (with propagation to the parents). QTest::mouseMove
    only moves the cursor in Qt 5.15, so drags need this.
*/
inline void mouseMove(QWidget *target, const QPoint &pos, Qt::MouseButtons buttons = Qt::NoButton)
{
    QMouseEvent event(
        QEvent::MouseMove, QPointF(pos), QPointF(target->mapToGlobal(pos)), Qt::NoButton, buttons, Qt::NoModifier);
    QApplication::sendEvent(target, &event);
}

} // namespace TestSupport

#endif // UTILS_TESTS_MOUSEEVENTS_H
