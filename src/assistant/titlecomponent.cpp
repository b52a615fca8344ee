// SPDX-License-Identifier: LGPL-2.1-or-later
#include "assistant/titlecomponent.h"

#include "assistant/assistant_p.h"

namespace Assistant {

using namespace Internal;

struct TitleComponent::Private
{
    QString title;
    QString icon;
    QString text;
    QString sourceTitle;
    QString sourceText;
};

TitleComponent::TitleComponent(QObject *parent, const QString &title, const QString &icon, QString text)
    : Element(Element::Title, parent)
    , d(new Private { title, icon, text, title, text })
{ }

TitleComponent::~TitleComponent() = default;

QString TitleComponent::title() const
{
    return d->title;
}

QString TitleComponent::icon() const
{
    return d->icon;
}

QString TitleComponent::text() const
{
    return d->text;
}

void TitleComponent::translate()
{
    setTitle(translated(d->sourceTitle));
    d->text = translated(d->sourceText);
}

void TitleComponent::setTitle(const QString &title)
{
    if (assign(d->title, title))
        Q_EMIT titleChanged(d->title);
}

} // namespace Assistant
