// SPDX-License-Identifier: LGPL-2.1-or-later
#ifndef UTILS_FILEPATHMANAGER_H
#define UTILS_FILEPATHMANAGER_H

#include "utils_export.h"

#include "qtpropertybrowser.h"

#include <memory>

namespace Utils {

/*!
    \brief The manager of file-path properties: a path and the name filter the
    file dialog offers when the user looks for a file (both empty at first).

    Editors come from FileEditFactory.

    \sa FileEditFactory, FilePathEditor
*/
class UTILS_EXPORT FilePathManager : public QtAbstractPropertyManager
{
    Q_OBJECT

public:
    explicit FilePathManager(QObject *parent = nullptr);
    ~FilePathManager() override;

    //! The path of \a property; empty for a property of another manager.
    QString value(const QtProperty *property) const;
    //! The file-dialog name filter of \a property, e.g. "Images (*.png *.jpg)".
    QString filter(const QtProperty *property) const;

public Q_SLOTS:
    //! On a real change of the path, emits propertyChanged() and then valueChanged().
    void setValue(QtProperty *property, const QString &value);
    //! On a real change of the name filter, emits filterChanged().
    void setFilter(QtProperty *property, const QString &filter);

Q_SIGNALS:
    //! The path of \a property became \a value.
    void valueChanged(QtProperty *property, const QString &value);
    //! The name filter of \a property became \a filter.
    void filterChanged(QtProperty *property, const QString &filter);

protected:
    //! The path.
    QString valueText(const QtProperty *property) const override;
    void initializeProperty(QtProperty *property) override;
    void uninitializeProperty(QtProperty *property) override;

private:
    Q_DISABLE_COPY(FilePathManager)
    struct Private;
    std::unique_ptr<Private> d;
};

} // namespace Utils

#endif // UTILS_FILEPATHMANAGER_H
