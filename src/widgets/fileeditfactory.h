// SPDX-License-Identifier: LGPL-2.1-or-later
#ifndef UTILS_FILEEDITFACTORY_H
#define UTILS_FILEEDITFACTORY_H

#include "utils_export.h"

#include "qtpropertybrowser.h"
#include "widgets/filepathmanager.h"

#include <memory>

namespace Utils {

/*!
    \brief Makes a FilePathEditor for each file-path property a browser edits.

    What the user types or chooses goes to FilePathManager::setValue() at once;
    open editors follow the manager's path and name filter when they are changed
    from outside.

    \sa FilePathManager, FilePathEditor
*/
class UTILS_EXPORT FileEditFactory : public QtAbstractEditorFactory<FilePathManager>
{
    Q_OBJECT

public:
    explicit FileEditFactory(QObject *parent = nullptr);
    ~FileEditFactory() override;

    using QtAbstractEditorFactory<FilePathManager>::createEditor;

protected:
    //! Lets the open editors follow \a manager's paths and name filters.
    void connectPropertyManager(FilePathManager *manager) override;
    //! A FilePathEditor with the property's path and filter.
    QWidget *createEditor(FilePathManager *manager, QtProperty *property, QWidget *parent) override;
    //! Undoes connectPropertyManager().
    void disconnectPropertyManager(FilePathManager *manager) override;

private Q_SLOTS:
    void slotPropertyChanged(QtProperty *property, const QString &value);
    void slotPropertyFilterChanged(QtProperty *property, const QString &filter);
    void slotSetValue(const QString &value);
    void slotFilterChanged(QtProperty *property, const QString &filter);
    void slotEditorDestroyed(QObject *object);

private:
    Q_DISABLE_COPY(FileEditFactory)
    struct Private;
    std::unique_ptr<Private> d;
};

} // namespace Utils

#endif // UTILS_FILEEDITFACTORY_H
