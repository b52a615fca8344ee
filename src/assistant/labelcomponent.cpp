// SPDX-License-Identifier: LGPL-2.1-or-later
#include "assistant/labelcomponent.h"

#include "assistant/assistant_p.h"

namespace Assistant {

using namespace Internal;

struct LabelComponent::Private
{
    QString iconText;
    QString labelText;
    unsigned char xPos;
    QString sourceIconText;
    QString sourceLabelText;
};

LabelComponent::LabelComponent(QObject *parent, const QString &text, const QString &iconText, unsigned char xPos)
    : Element(Element::Label, parent)
    , d(new Private { iconText, text, xPos, iconText, text })
{ }

LabelComponent::~LabelComponent() = default;

QString LabelComponent::iconText() const
{
    return d->iconText;
}

QString LabelComponent::labelText() const
{
    return d->labelText;
}

unsigned char LabelComponent::xPos() const
{
    return d->xPos;
}

void LabelComponent::translate()
{
    setText(translated(d->sourceLabelText));
    setIconText(translated(d->sourceIconText));
}

void LabelComponent::setIconText(const QString &text)
{
    if (assign(d->iconText, text))
        Q_EMIT iconTextChanged(d->iconText);
}

void LabelComponent::setText(const QString &text)
{
    if (assign(d->labelText, text))
        Q_EMIT textChanged(d->labelText);
}

} // namespace Assistant
