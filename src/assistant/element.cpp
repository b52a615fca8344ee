// SPDX-License-Identifier: LGPL-2.1-or-later
#include "assistant/element.h"

#include <QtQml/qqml.h>

namespace Assistant {

struct Element::Private
{
    explicit Private(Element::Type t)
        : type(t)
    { }
    const Element::Type type;
    bool enabled = true;
    bool visible = true;
};

Element::Element(Element::Type type, QObject *parent)
    : QObject(parent)
    , d(new Private(type))
{ }

Element::~Element() = default;

void Element::registerQmlElement()
{
    qmlRegisterUncreatableType<Element>(
        "Element", 1, 0, "Element", QStringLiteral("Element type object cannot be created."));
}

Element::Type Element::typeID() const
{
    return d->type;
}

void Element::restore() { }

void Element::translate()
{
    Q_EMIT languageChanged();
}

bool Element::enabled() const
{
    return d->enabled;
}

bool Element::visible() const
{
    return d->visible;
}

QString Element::getForceTranslate() const
{
    return QString();
}

void Element::setEnabled(bool enabled)
{
    if (d->enabled == enabled)
        return;
    d->enabled = enabled;
    Q_EMIT enabledChanged(enabled);
}

void Element::setVisible(bool visible)
{
    if (d->visible == visible)
        return;
    d->visible = visible;
    Q_EMIT visibleChanged(visible);
}

} // namespace Assistant
