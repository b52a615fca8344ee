// SPDX-License-Identifier: LGPL-2.1-or-later
#include "assistant/doublespinboxcomponent.h"

#include "assistant/assistant_p.h"

namespace Assistant {

using namespace Internal;

struct DoubleSpinBoxComponent::Private
{
    QString iconText;
    QString spinText;
    double spinValue;
    double spinFrom;
    double spinTo;
    double step;
    double storedValue;
    QString sourceSpinText;
    QString sourceIconText;
};

DoubleSpinBoxComponent::DoubleSpinBoxComponent(QObject *parent, double value, double from, double to, double step,
    const QString &iconText, const QString &spinText)
    : Element(Element::DoubleSpinBox, parent)
    , d(new Private { iconText, spinText, value, from, to, step, value, spinText, iconText })
{ }

DoubleSpinBoxComponent::~DoubleSpinBoxComponent() = default;

QString DoubleSpinBoxComponent::iconText() const
{
    return d->iconText;
}

QString DoubleSpinBoxComponent::spinText() const
{
    return d->spinText;
}

double DoubleSpinBoxComponent::spinValue() const
{
    return d->spinValue;
}

double DoubleSpinBoxComponent::spinFrom() const
{
    return d->spinFrom;
}

double DoubleSpinBoxComponent::spinTo() const
{
    return d->spinTo;
}

double DoubleSpinBoxComponent::step() const
{
    return d->step;
}

void DoubleSpinBoxComponent::restore()
{
    setSpinValue(d->storedValue);
}

void DoubleSpinBoxComponent::translate()
{
    setSpinText(translated(d->sourceSpinText));
    setIconText(translated(d->sourceIconText));
}

void DoubleSpinBoxComponent::setSpinValue(double value)
{
    if (assign(d->spinValue, value))
        Q_EMIT spinValueChanged(d->spinValue);
}

void DoubleSpinBoxComponent::setSpinFrom(double from)
{
    if (assign(d->spinFrom, from))
        Q_EMIT spinFromChanged(d->spinFrom);
}

void DoubleSpinBoxComponent::setSpinTo(double to)
{
    if (assign(d->spinTo, to))
        Q_EMIT spinToChanged(d->spinTo);
}

void DoubleSpinBoxComponent::setStep(double step)
{
    if (assign(d->step, step))
        Q_EMIT stepChanged(d->step);
}

void DoubleSpinBoxComponent::setSpinText(const QString &text)
{
    if (assign(d->spinText, text))
        Q_EMIT spinTextChanged(d->spinText);
}

void DoubleSpinBoxComponent::setIconText(const QString &text)
{
    if (assign(d->iconText, text))
        Q_EMIT iconTextChanged(d->iconText);
}

} // namespace Assistant
