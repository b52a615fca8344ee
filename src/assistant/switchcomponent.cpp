// SPDX-License-Identifier: LGPL-2.1-or-later
#include "assistant/switchcomponent.h"

#include "assistant/assistant_p.h"

namespace Assistant {

using namespace Internal;

struct SwitchComponent::Private
{
    QString iconText;
    QString switchText;
    bool status;
    bool storedStatus;
    QString sourceIconText;
    QString sourceSwitchText;
};

SwitchComponent::SwitchComponent(QObject *parent, bool status, const QString &iconText, const QString &switchText)
    : Element(Element::Switch, parent)
    , d(new Private { iconText, switchText, status, status, iconText, switchText })
{ }

SwitchComponent::~SwitchComponent() = default;

QString SwitchComponent::iconText() const
{
    return d->iconText;
}

QString SwitchComponent::switchText() const
{
    return d->switchText;
}

bool SwitchComponent::status() const
{
    return d->status;
}

void SwitchComponent::restore()
{
    setStatus(d->storedStatus);
}

void SwitchComponent::translate()
{
    setIconText(translated(d->sourceIconText));
    setSwitchText(translated(d->sourceSwitchText));
}

void SwitchComponent::setStatus(bool status)
{
    if (assign(d->status, status))
        Q_EMIT statusChanged(d->status);
}

void SwitchComponent::setIconText(const QString &text)
{
    if (assign(d->iconText, text))
        Q_EMIT iconTextChanged(d->iconText);
}

void SwitchComponent::setSwitchText(const QString &text)
{
    if (assign(d->switchText, text))
        Q_EMIT switchTextChanged(d->switchText);
}

} // namespace Assistant
