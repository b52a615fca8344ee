// SPDX-License-Identifier: LGPL-2.1-or-later
#include "assistant/urlelement.h"

#include "assistant/assistant_p.h"

namespace Assistant {

using namespace Internal;

struct UrlElement::Private
{
    QString text;
    QString url;
    QString icon;
    QString sourceText;
};

UrlElement::UrlElement(QObject *parent, const QString &text, const QString &url, const QString &icon)
    : Element(Element::Url, parent)
    , d(new Private { text, url, icon, text })
{ }

UrlElement::~UrlElement() = default;

QString UrlElement::text() const
{
    return d->text;
}

QString UrlElement::url() const
{
    return d->url;
}

QString UrlElement::icon() const
{
    return d->icon;
}

void UrlElement::translate()
{
    // The address is not a text for people; only the shown text is translated.
    setText(translated(d->sourceText));
}

void UrlElement::setText(const QString &text)
{
    if (assign(d->text, text))
        Q_EMIT textChanged(d->text);
}

void UrlElement::setUrl(const QString &url)
{
    if (assign(d->url, url))
        Q_EMIT urlChanged(d->url);
}

} // namespace Assistant
