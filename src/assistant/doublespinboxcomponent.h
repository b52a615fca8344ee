// SPDX-License-Identifier: LGPL-2.1-or-later
#ifndef UTILS_DOUBLESPINBOXCOMPONENT_H
#define UTILS_DOUBLESPINBOXCOMPONENT_H

#include "assistant/element.h"

namespace Assistant {

/*!
    \brief Decimal input with a range and a step (type DoubleSpinBox).

    Values are compared with a relative tolerance of 1e-12, so a write that
    differs only by rounding noise emits nothing. The value is not clamped;
    restore() puts back the value given to the constructor.
*/
class UTILS_EXPORT DoubleSpinBoxComponent : public Element
{
    Q_OBJECT
    Q_PROPERTY(QString iconText READ iconText WRITE setIconText NOTIFY iconTextChanged)
    Q_PROPERTY(QString spinText READ spinText WRITE setSpinText NOTIFY spinTextChanged)
    Q_PROPERTY(double spinValue READ spinValue WRITE setSpinValue NOTIFY spinValueChanged)
    Q_PROPERTY(double spinFrom READ spinFrom WRITE setSpinFrom NOTIFY spinFromChanged)
    Q_PROPERTY(double spinTo READ spinTo WRITE setSpinTo NOTIFY spinToChanged)
    Q_PROPERTY(double step READ step WRITE setStep NOTIFY stepChanged)

public:
    DoubleSpinBoxComponent(QObject *parent, double value, double from, double to, double step, const QString &iconText,
        const QString &spinText);
    ~DoubleSpinBoxComponent() override;

    QString iconText() const;
    QString spinText() const;
    double spinValue() const;
    double spinFrom() const;
    double spinTo() const;
    double step() const;

    void restore() override;
    void translate() override;

Q_SIGNALS:
    void spinValueChanged(double value);
    void spinFromChanged(double from);
    void spinToChanged(double to);
    void stepChanged(double step);
    void iconTextChanged(QString text);
    void spinTextChanged(QString text);

public Q_SLOTS:
    void setSpinValue(double value);
    void setSpinFrom(double from);
    void setSpinTo(double to);
    void setStep(double step);
    void setSpinText(const QString &text);
    void setIconText(const QString &text);

private:
    struct Private;
    std::unique_ptr<Private> d;
};

} // namespace Assistant

#endif // UTILS_DOUBLESPINBOXCOMPONENT_H
