// SPDX-License-Identifier: LGPL-2.1-or-later
#include "assistant/buttonscomponent.h"

#include "assistant/assistant_p.h"

namespace Assistant {

using namespace Internal;

struct ButtonsComponent::Private
{
    QString iconText;
    QStringList names;
    unsigned char selected;
    unsigned char spacing;
    unsigned char columns;
    unsigned char storedSelected;
    QString sourceIconText;
    QStringList sourceNames;
};

ButtonsComponent::ButtonsComponent(QObject *parent, unsigned char selected, QStringList names, QString iconText,
    unsigned char columns, unsigned char spacing)
    : Element(Element::Buttons, parent)
    , d(new Private { iconText, names, selected, spacing, columns, selected, iconText, names })
{ }

ButtonsComponent::~ButtonsComponent() = default;

QString ButtonsComponent::iconText() const
{
    return d->iconText;
}

QStringList ButtonsComponent::names() const
{
    return d->names;
}

unsigned char ButtonsComponent::selected() const
{
    return d->selected;
}

unsigned char ButtonsComponent::spacing() const
{
    return d->spacing;
}

unsigned char ButtonsComponent::columns() const
{
    return d->columns;
}

void ButtonsComponent::restore()
{
    setSelected(d->storedSelected);
}

void ButtonsComponent::translate()
{
    setNames(translated(d->sourceNames));
    setIconText(translated(d->sourceIconText));
}

void ButtonsComponent::setSelected(unsigned char selected)
{
    if (assign(d->selected, selected))
        Q_EMIT selectedChanged(d->selected);
}

void ButtonsComponent::setNames(const QStringList &names)
{
    if (assign(d->names, names))
        Q_EMIT namesChanged(d->names);
}

void ButtonsComponent::setIconText(const QString &text)
{
    if (assign(d->iconText, text))
        Q_EMIT iconTextChanged(d->iconText);
}

} // namespace Assistant
