// SPDX-License-Identifier: LGPL-2.1-or-later
#include "assistant/checkboxcomponent.h"

#include "assistant/assistant_p.h"

namespace Assistant {

using namespace Internal;

struct CheckBoxComponent::Private
{
    QString iconText;
    QString spinText;
    int spinValue;
    int spinFrom;
    int spinTo;
    int step;
    int storedValue;
    QString sourceSpinText;
    QString sourceIconText;
};

CheckBoxComponent::CheckBoxComponent(
    QObject *parent, int value, int from, int to, int step, const QString &iconText, const QString &spinText)
    : Element(Element::CheckBox, parent)
    , d(new Private { iconText, spinText, value, from, to, step, value, spinText, iconText })
{ }

CheckBoxComponent::~CheckBoxComponent() = default;

QString CheckBoxComponent::iconText() const
{
    return d->iconText;
}

QString CheckBoxComponent::spinText() const
{
    return d->spinText;
}

int CheckBoxComponent::spinValue() const
{
    return d->spinValue;
}

int CheckBoxComponent::spinFrom() const
{
    return d->spinFrom;
}

int CheckBoxComponent::spinTo() const
{
    return d->spinTo;
}

int CheckBoxComponent::step() const
{
    return d->step;
}

void CheckBoxComponent::restore()
{
    setSpinValue(d->storedValue);
}

void CheckBoxComponent::translate()
{
    setSpinText(translated(d->sourceSpinText));
    setIconText(translated(d->sourceIconText));
}

void CheckBoxComponent::setSpinValue(int value)
{
    if (assign(d->spinValue, value))
        Q_EMIT spinValueChanged(d->spinValue);
}

void CheckBoxComponent::setSpinFrom(int from)
{
    if (assign(d->spinFrom, from))
        Q_EMIT spinFromChanged(d->spinFrom);
}

void CheckBoxComponent::setSpinTo(int to)
{
    if (assign(d->spinTo, to))
        Q_EMIT spinToChanged(d->spinTo);
}

void CheckBoxComponent::setStep(int step)
{
    if (assign(d->step, step))
        Q_EMIT stepChanged(d->step);
}

void CheckBoxComponent::setSpinText(const QString &text)
{
    if (assign(d->spinText, text))
        Q_EMIT spinTextChanged(d->spinText);
}

void CheckBoxComponent::setIconText(const QString &text)
{
    if (assign(d->iconText, text))
        Q_EMIT iconTextChanged(d->iconText);
}

} // namespace Assistant
