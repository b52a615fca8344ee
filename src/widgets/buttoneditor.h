// SPDX-License-Identifier: LGPL-2.1-or-later
#ifndef UTILS_BUTTONEDITOR_H
#define UTILS_BUTTONEDITOR_H

#include "utils_export.h"

#include <QWidget>

#include <memory>

class QPushButton;

namespace Utils {

/*!
    \brief The editor of a button property: one push button filling the value
    cell, as low as the row needs.

    \sa ButtonFactory
*/
class UTILS_EXPORT ButtonEditor : public QWidget
{
    Q_OBJECT

public:
    explicit ButtonEditor(QWidget *parent = nullptr);
    ~ButtonEditor() override;

    //! The button; ButtonFactory listens to its clicks.
    QPushButton *button() const;
    //! Sets the button's text.
    void setText(const QString &text);
    //! The button's text.
    QString text() const;

private:
    Q_DISABLE_COPY(ButtonEditor)
    struct Private;
    std::unique_ptr<Private> d;
};

} // namespace Utils

#endif // UTILS_BUTTONEDITOR_H
