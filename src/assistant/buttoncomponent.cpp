// SPDX-License-Identifier: LGPL-2.1-or-later
#include "assistant/buttoncomponent.h"

#include "assistant/assistant_p.h"

namespace Assistant {

using namespace Internal;

struct ButtonComponent::Private
{
    QString iconText;
    QString labelText;
    QString buttonText;
    bool alignRight;
    QString sourceIconText;
    QString sourceLabelText;
    QString sourceButtonText;
};

ButtonComponent::ButtonComponent(
    QObject *parent, const QString &buttonText, QString labelText, QString iconText, bool alignRight)
    : Element(Element::Button, parent)
    , d(new Private { iconText, labelText, buttonText, alignRight, iconText, labelText, buttonText })
{ }

ButtonComponent::~ButtonComponent() = default;

QString ButtonComponent::iconText() const
{
    return d->iconText;
}

QString ButtonComponent::labelText() const
{
    return d->labelText;
}

QString ButtonComponent::buttonText() const
{
    return d->buttonText;
}

bool ButtonComponent::alignRight() const
{
    return d->alignRight;
}

void ButtonComponent::translate()
{
    setButtonText(translated(d->sourceButtonText));
    setLabelText(translated(d->sourceLabelText));
    setIconText(translated(d->sourceIconText));
}

void ButtonComponent::setButtonText(const QString &text)
{
    if (assign(d->buttonText, text))
        Q_EMIT buttonTextChanged(d->buttonText);
}

void ButtonComponent::setIconText(const QString &text)
{
    if (assign(d->iconText, text))
        Q_EMIT iconTextChanged(d->iconText);
}

void ButtonComponent::setLabelText(const QString &text)
{
    if (assign(d->labelText, text))
        Q_EMIT labelTextChanged(d->labelText);
}

} // namespace Assistant
