// SPDX-License-Identifier: LGPL-2.1-or-later
#include "assistant/boxcomponent.h"

#include "assistant/assistant_p.h"

namespace Assistant {

using namespace Internal;

struct BoxComponent::Private
{
    QString iconText;
    QString labelText;
    QString buttonText;
    QString buttonColor;
    QString sourceIconText;
    QString sourceLabelText;
    QString sourceButtonText;
};

BoxComponent::BoxComponent(QObject *parent, QString buttonText, QString iconText, QString labelText)
    : Element(Element::Box, parent)
    , d(new Private { iconText, labelText, buttonText, QStringLiteral("white"), iconText, labelText, buttonText })
{ }

BoxComponent::~BoxComponent() = default;

QString BoxComponent::iconText() const
{
    return d->iconText;
}

QString BoxComponent::labelText() const
{
    return d->labelText;
}

QString BoxComponent::buttonText() const
{
    return d->buttonText;
}

QString BoxComponent::buttonColor() const
{
    return d->buttonColor;
}

void BoxComponent::translate()
{
    setButtonText(translated(d->sourceButtonText));
    setLabelText(translated(d->sourceLabelText));
    setIconText(translated(d->sourceIconText));
}

void BoxComponent::setButtonText(const QString &text)
{
    if (assign(d->buttonText, text))
        Q_EMIT buttonTextChanged(d->buttonText);
}

void BoxComponent::setButtonColor(const QString &color)
{
    if (assign(d->buttonColor, color))
        Q_EMIT buttonColorChanged(d->buttonColor);
}

void BoxComponent::setLabelText(const QString &text)
{
    if (assign(d->labelText, text))
        Q_EMIT labelTextChanged(d->labelText);
}

void BoxComponent::setIconText(const QString &text)
{
    if (assign(d->iconText, text))
        Q_EMIT iconTextChanged(d->iconText);
}

} // namespace Assistant
