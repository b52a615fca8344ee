// SPDX-License-Identifier: LGPL-2.1-or-later
#include "widgets/filepathmanager.h"

#include <QMap>

namespace Utils {

namespace {

struct Data
{
    QString value;
    QString filter;
};

} // namespace

struct FilePathManager::Private
{
    QMap<const QtProperty *, Data> values;
};

FilePathManager::FilePathManager(QObject *parent)
    : QtAbstractPropertyManager(parent)
    , d(new Private)
{ }

FilePathManager::~FilePathManager()
{
    // Here, not in the base destructor, so that uninitializeProperty() still runs.
    clear();
}

QString FilePathManager::value(const QtProperty *property) const
{
    return d->values.value(property).value;
}

QString FilePathManager::filter(const QtProperty *property) const
{
    return d->values.value(property).filter;
}

void FilePathManager::setValue(QtProperty *property, const QString &value)
{
    const auto it = d->values.find(property);
    if (it == d->values.end() || it->value == value)
        return;
    it->value = value;
    Q_EMIT propertyChanged(property);
    Q_EMIT valueChanged(property, value);
}

void FilePathManager::setFilter(QtProperty *property, const QString &filter)
{
    const auto it = d->values.find(property);
    if (it == d->values.end() || it->filter == filter)
        return;
    it->filter = filter;
    Q_EMIT filterChanged(property, filter);
}

QString FilePathManager::valueText(const QtProperty *property) const
{
    return value(property);
}

void FilePathManager::initializeProperty(QtProperty *property)
{
    d->values.insert(property, Data());
}

void FilePathManager::uninitializeProperty(QtProperty *property)
{
    d->values.remove(property);
}

} // namespace Utils
