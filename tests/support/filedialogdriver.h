// SPDX-License-Identifier: LGPL-2.1-or-later
#ifndef UTILS_TESTS_FILEDIALOGDRIVER_H
#define UTILS_TESTS_FILEDIALOGDRIVER_H

#include "modaldialogdriver.h"

#include <QFile>
#include <QFileDialog>
#include <QLineEdit>
#include <QMessageBox>
#include <QPushButton>
#include <QTest>

namespace TestSupport {

/*!
    Answers the next file dialog with \a path, typed into its name field and
    confirmed with Return; confirms the overwrite question when \a path exists.
    \a checks sees the dialog first. Returns the whenModal() flag.
*/
inline std::shared_ptr<bool> answerFileDialog(const QString &path, std::function<void(QFileDialog *)> checks = {})
{
    return whenModal<QFileDialog>([=](QFileDialog *dialog) {
        if (checks)
            checks(dialog);
        if (QFile::exists(path))
            whenModal<QMessageBox>([](QMessageBox *box) { box->button(QMessageBox::Yes)->click(); });
        auto *name = dialog->findChild<QLineEdit *>(QStringLiteral("fileNameEdit"));
        name->setText(path);
        QTest::keyClick(name, Qt::Key_Return);
    });
}

//! Cancels the next file dialog with Escape, after \a checks has seen it.
inline std::shared_ptr<bool> cancelFileDialog(std::function<void(QFileDialog *)> checks = {})
{
    return whenModal<QFileDialog>([=](QFileDialog *dialog) {
        if (checks)
            checks(dialog);
        QTest::keyClick(dialog, Qt::Key_Escape);
    });
}

} // namespace TestSupport

#endif // UTILS_TESTS_FILEDIALOGDRIVER_H
