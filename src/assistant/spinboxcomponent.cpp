// SPDX-License-Identifier: LGPL-2.1-or-later
#include "assistant/spinboxcomponent.h"

#include "assistant/assistant_p.h"

namespace Assistant {

using namespace Internal;

struct SpinBoxComponent::Private
{
    QString textInput;
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

SpinBoxComponent::SpinBoxComponent(
    QObject *parent, int value, int from, int to, int step, const QString &iconText, const QString &spinText)
    : Element(Element::SpinBox, parent)
    , d(new Private { QString(), iconText, spinText, value, from, to, step, value, spinText, iconText })
{ }

SpinBoxComponent::~SpinBoxComponent() = default;

QString SpinBoxComponent::textInput() const
{
    return d->textInput;
}

void SpinBoxComponent::setTextInput(const QString &text)
{
    if (assign(d->textInput, text))
        Q_EMIT vTextChanged(d->textInput);
}

QString SpinBoxComponent::iconText() const
{
    return d->iconText;
}

QString SpinBoxComponent::spinText() const
{
    return d->spinText;
}

int SpinBoxComponent::spinValue() const
{
    return d->spinValue;
}

int SpinBoxComponent::spinFrom() const
{
    return d->spinFrom;
}

int SpinBoxComponent::spinTo() const
{
    return d->spinTo;
}

int SpinBoxComponent::step() const
{
    return d->step;
}

void SpinBoxComponent::restore()
{
    setSpinValue(d->storedValue);
}

void SpinBoxComponent::translate()
{
    setSpinText(translated(d->sourceSpinText));
    setIconText(translated(d->sourceIconText));
}

void SpinBoxComponent::setSpinValue(int value)
{
    if (assign(d->spinValue, value))
        Q_EMIT spinValueChanged(d->spinValue);
}

void SpinBoxComponent::setSpinFrom(int from)
{
    if (assign(d->spinFrom, from))
        Q_EMIT spinFromChanged(d->spinFrom);
}

void SpinBoxComponent::setSpinTo(int to)
{
    if (assign(d->spinTo, to))
        Q_EMIT spinToChanged(d->spinTo);
}

void SpinBoxComponent::setStep(int step)
{
    if (assign(d->step, step))
        Q_EMIT stepChanged(d->step);
}

void SpinBoxComponent::setSpinText(const QString &text)
{
    if (assign(d->spinText, text))
        Q_EMIT spinTextChanged(d->spinText);
}

void SpinBoxComponent::setIconText(const QString &text)
{
    if (assign(d->iconText, text))
        Q_EMIT iconTextChanged(d->iconText);
}

void SpinBoxComponent::elementClicked()
{
    Q_EMIT emitButtonClicked();
    // The slot hides the inherited signal of the same name; raise that one
    // too so that a manager listening to every element hears this click.
    Q_EMIT Element::elementClicked();
}

void SpinBoxComponent::vTestFinished(const QString &text)
{
    setTextInput(text);
    Q_EMIT editingFinished();
}

} // namespace Assistant
