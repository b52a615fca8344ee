// SPDX-License-Identifier: LGPL-2.1-or-later
#include "assistant/comboboxcomponent.h"

#include "assistant/assistant_p.h"

namespace Assistant {

using namespace Internal;

struct ComboBoxComponent::Private
{
    QStringList itemList;
    int selectedIndex;
    QString labelText;
    QString helpText;
    int storedIndex;
    QStringList sourceItemList;
    QString sourceLabelText;
    QString sourceHelpText;
};

ComboBoxComponent::ComboBoxComponent(
    QObject *parent, QStringList itemList, int selectedIndex, QString labelText, QString helpText)
    : Element(Element::ComboBox, parent)
    , d(new Private { itemList, selectedIndex, labelText, helpText, selectedIndex, itemList, labelText, helpText })
{ }

ComboBoxComponent::~ComboBoxComponent() = default;

QStringList ComboBoxComponent::itemList() const
{
    return d->itemList;
}

int ComboBoxComponent::selectedIndex() const
{
    return d->selectedIndex;
}

QString ComboBoxComponent::labelText() const
{
    return d->labelText;
}

QString ComboBoxComponent::helpText() const
{
    return d->helpText;
}

void ComboBoxComponent::restore()
{
    setSelectedIndex(d->storedIndex);
}

void ComboBoxComponent::translate()
{
    setItemList(translated(d->sourceItemList));
    setLabelText(translated(d->sourceLabelText));
    setHelpText(translated(d->sourceHelpText));
}

void ComboBoxComponent::setSelectedIndex(int index)
{
    if (assign(d->selectedIndex, index))
        Q_EMIT selectedIndexChanged(d->selectedIndex);
}

void ComboBoxComponent::setItemList(const QStringList &items)
{
    if (assign(d->itemList, items))
        Q_EMIT itemListChanged(d->itemList);
}

void ComboBoxComponent::setLabelText(const QString &text)
{
    if (assign(d->labelText, text))
        Q_EMIT labelTextChanged(d->labelText);
}

void ComboBoxComponent::setHelpText(const QString &text)
{
    if (assign(d->helpText, text))
        Q_EMIT helpTextChanged(d->helpText);
}

} // namespace Assistant
