// SPDX-License-Identifier: LGPL-2.1-or-later
#include "widgets/buttonfactory.h"

#include "widgets/buttoneditor.h"
#include "widgets/editortracker_p.h"

#include <QPushButton>

namespace Utils {

struct ButtonFactory::Private
{
    Internal::EditorTracker<ButtonEditor> editors;
};

ButtonFactory::ButtonFactory(QObject *parent)
    : QtAbstractEditorFactory<ButtonManager>(parent)
    , d(new Private)
{ }

ButtonFactory::~ButtonFactory() = default;

void ButtonFactory::connectPropertyManager(ButtonManager *manager)
{
    Q_UNUSED(manager)
}

QWidget *ButtonFactory::createEditor(ButtonManager *manager, QtProperty *property, QWidget *parent)
{
    auto *editor = new ButtonEditor(parent);
    editor->setText(manager->value(property));
    d->editors.add(property, editor);
    const bool connected = connect(editor->button(), SIGNAL(clicked()), this, SLOT(slotClicked()))
        && connect(editor, SIGNAL(destroyed(QObject *)), this, SLOT(slotEditorDestroyed(QObject *)));
    Q_ASSERT(connected);
    Q_UNUSED(connected)
    return editor;
}

void ButtonFactory::disconnectPropertyManager(ButtonManager *manager)
{
    disconnect(manager, nullptr, this, nullptr);
}

void ButtonFactory::slotClicked()
{
    // The click comes from the editor's button, a child of the editor.
    const QObject *button = sender();
    QtProperty *property = button ? d->editors.property(button->parent()) : nullptr;
    ButtonManager *manager = propertyManager(property);
    if (!manager)
        return;
    manager->setValue(property, manager->value(property));
    manager->emitClicked(property);
}

void ButtonFactory::slotEditorDestroyed(QObject *object)
{
    d->editors.remove(object);
}

} // namespace Utils
