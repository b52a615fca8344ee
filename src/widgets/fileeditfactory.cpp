// SPDX-License-Identifier: LGPL-2.1-or-later
#include "widgets/fileeditfactory.h"

#include "widgets/editortracker_p.h"
#include "widgets/filepatheditor.h"

namespace Utils {

struct FileEditFactory::Private
{
    Internal::EditorTracker<FilePathEditor> editors;
};

FileEditFactory::FileEditFactory(QObject *parent)
    : QtAbstractEditorFactory<FilePathManager>(parent)
    , d(new Private)
{ }

FileEditFactory::~FileEditFactory() = default;

void FileEditFactory::connectPropertyManager(FilePathManager *manager)
{
    connect(manager, &FilePathManager::valueChanged, this, &FileEditFactory::slotPropertyChanged);
    connect(manager, &FilePathManager::filterChanged, this, &FileEditFactory::slotPropertyFilterChanged);
}

QWidget *FileEditFactory::createEditor(FilePathManager *manager, QtProperty *property, QWidget *parent)
{
    auto *editor = new FilePathEditor(parent);
    editor->setFilePath(manager->value(property));
    editor->setFilter(manager->filter(property));
    d->editors.add(property, editor);
    const bool connected
        = connect(editor, SIGNAL(filePathChanged(const QString &)), this, SLOT(slotSetValue(const QString &)))
        && connect(editor, SIGNAL(destroyed(QObject *)), this, SLOT(slotEditorDestroyed(QObject *)));
    Q_ASSERT(connected);
    Q_UNUSED(connected)
    return editor;
}

void FileEditFactory::disconnectPropertyManager(FilePathManager *manager)
{
    disconnect(manager, &FilePathManager::valueChanged, this, &FileEditFactory::slotPropertyChanged);
    disconnect(manager, &FilePathManager::filterChanged, this, &FileEditFactory::slotPropertyFilterChanged);
}

void FileEditFactory::slotPropertyChanged(QtProperty *property, const QString &value)
{
    const QList<FilePathEditor *> editors = d->editors.editors(property);
    for (FilePathEditor *editor : editors) {
        // The editor being typed in has the text already; setting it again would
        // move the cursor to the end and forget the undo steps.
        if (editor->filePath() != value)
            editor->setFilePath(value);
    }
}

void FileEditFactory::slotPropertyFilterChanged(QtProperty *property, const QString &filter)
{
    const QList<FilePathEditor *> editors = d->editors.editors(property);
    for (FilePathEditor *editor : editors)
        editor->setFilter(filter);
}

void FileEditFactory::slotSetValue(const QString &value)
{
    QtProperty *property = d->editors.property(sender());
    if (FilePathManager *manager = propertyManager(property))
        manager->setValue(property, value);
}

/*!
    For an editor that reports a name filter of its own: the filter goes to the
    manager for the property of the sending editor (the property argument only
    names the signal's shape).
*/
void FileEditFactory::slotFilterChanged(QtProperty *property, const QString &filter)
{
    Q_UNUSED(property)
    QtProperty *edited = d->editors.property(sender());
    if (FilePathManager *manager = propertyManager(edited))
        manager->setFilter(edited, filter);
}

void FileEditFactory::slotEditorDestroyed(QObject *object)
{
    d->editors.remove(object);
}

} // namespace Utils
