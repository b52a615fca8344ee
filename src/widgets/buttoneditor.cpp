// SPDX-License-Identifier: LGPL-2.1-or-later
#include "widgets/buttoneditor.h"

#include <QHBoxLayout>
#include <QPushButton>

namespace Utils {

struct ButtonEditor::Private
{
    QPushButton *button;
};

ButtonEditor::ButtonEditor(QWidget *parent)
    : QWidget(parent)
    , d(new Private { new QPushButton(this) })
{
    auto *layout = new QHBoxLayout(this);
    layout->setSpacing(0);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSizeConstraint(QLayout::SetMinimumSize);
    // Lets the button shrink to the height of a browser row.
    d->button->setMinimumHeight(1);
    layout->addWidget(d->button);
}

ButtonEditor::~ButtonEditor() = default;

QPushButton *ButtonEditor::button() const
{
    return d->button;
}

void ButtonEditor::setText(const QString &text)
{
    d->button->setText(text);
}

QString ButtonEditor::text() const
{
    return d->button->text();
}

} // namespace Utils
