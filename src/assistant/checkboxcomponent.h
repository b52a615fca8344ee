// SPDX-License-Identifier: LGPL-2.1-or-later
#ifndef UTILS_CHECKBOXCOMPONENT_H
#define UTILS_CHECKBOXCOMPONENT_H

#include "assistant/element.h"

namespace Assistant {

/*!
    \brief Integer input built like SpinBoxComponent, with its own type (CheckBox).

    The view decides how to present it (for example a check box for 0/1).
    restore() puts back the value given to the constructor.
*/
class UTILS_EXPORT CheckBoxComponent : public Element
{
    Q_OBJECT
    Q_PROPERTY(QString iconText READ iconText WRITE setIconText NOTIFY iconTextChanged)
    Q_PROPERTY(QString spinText READ spinText WRITE setSpinText NOTIFY spinTextChanged)
    Q_PROPERTY(int spinValue READ spinValue WRITE setSpinValue NOTIFY spinValueChanged)
    Q_PROPERTY(int spinFrom READ spinFrom WRITE setSpinFrom NOTIFY spinFromChanged)
    Q_PROPERTY(int spinTo READ spinTo WRITE setSpinTo NOTIFY spinToChanged)
    Q_PROPERTY(int step READ step WRITE setStep NOTIFY stepChanged)

public:
    CheckBoxComponent(
        QObject *parent, int value, int from, int to, int step, const QString &iconText, const QString &spinText);
    ~CheckBoxComponent() override;

    QString iconText() const;
    QString spinText() const;
    int spinValue() const;
    int spinFrom() const;
    int spinTo() const;
    int step() const;

    void restore() override;
    void translate() override;

Q_SIGNALS:
    void spinValueChanged(int value);
    void spinFromChanged(int from);
    void spinToChanged(int to);
    void stepChanged(int step);
    void iconTextChanged(QString text);
    void spinTextChanged(QString text);

public Q_SLOTS:
    void setSpinValue(int value);
    void setSpinFrom(int from);
    void setSpinTo(int to);
    void setStep(int step);
    void setSpinText(const QString &text);
    void setIconText(const QString &text);

private:
    struct Private;
    std::unique_ptr<Private> d;
};

} // namespace Assistant

#endif // UTILS_CHECKBOXCOMPONENT_H
