// SPDX-License-Identifier: LGPL-2.1-or-later
#ifndef UTILS_BUTTONCOMPONENT_H
#define UTILS_BUTTONCOMPONENT_H

#include "assistant/element.h"

namespace Assistant {

/*!
    \brief A push button with a label beside it (type Button).

    The view reports a press through the element's elementClicked() signal.
*/
class UTILS_EXPORT ButtonComponent : public Element
{
    Q_OBJECT
    Q_PROPERTY(QString iconText READ iconText WRITE setIconText NOTIFY iconTextChanged)
    Q_PROPERTY(QString labelText READ labelText WRITE setLabelText NOTIFY labelTextChanged)
    Q_PROPERTY(QString buttonText READ buttonText WRITE setButtonText NOTIFY buttonTextChanged)
    Q_PROPERTY(bool alignRight READ alignRight CONSTANT)

public:
    ButtonComponent(QObject *parent, const QString &buttonText, QString labelText, QString iconText, bool alignRight);
    ~ButtonComponent() override;

    QString iconText() const;
    QString labelText() const;
    QString buttonText() const;
    bool alignRight() const;

    void translate() override;

Q_SIGNALS:
    void buttonTextChanged(QString text);
    void iconTextChanged(QString text);
    void labelTextChanged(QString text);

public Q_SLOTS:
    void setButtonText(const QString &text);
    void setIconText(const QString &text);
    void setLabelText(const QString &text);

private:
    struct Private;
    std::unique_ptr<Private> d;
};

} // namespace Assistant

#endif // UTILS_BUTTONCOMPONENT_H
