// SPDX-License-Identifier: LGPL-2.1-or-later
#include "qtabstractpropertymanager.h"

#include "qtproperty_p.h"

QtAbstractPropertyManager::QtAbstractPropertyManager(QObject *parent)
    : QObject(parent)
    , d(new Private)
{ }

QtAbstractPropertyManager::~QtAbstractPropertyManager()
{
    clear();
}

QSet<QtProperty *> QtAbstractPropertyManager::properties() const
{
    return d->properties;
}

void QtAbstractPropertyManager::clear() const
{
    // Each property takes itself out of the set as it goes.
    while (!d->properties.isEmpty())
        delete *d->properties.cbegin();
}

QtProperty *QtAbstractPropertyManager::addProperty(const QString &name)
{
    QtProperty *property = createProperty();
    if (!property)
        return nullptr;
    // Named before anyone can see it, so that no change is announced.
    property->d->name = name;
    d->properties.insert(property);
    initializeProperty(property);
    return property;
}

bool QtAbstractPropertyManager::hasValue(const QtProperty *property) const
{
    Q_UNUSED(property)
    return true;
}

QIcon QtAbstractPropertyManager::valueIcon(const QtProperty *property) const
{
    Q_UNUSED(property)
    return QIcon();
}

QString QtAbstractPropertyManager::valueText(const QtProperty *property) const
{
    Q_UNUSED(property)
    return QString();
}

void QtAbstractPropertyManager::uninitializeProperty(QtProperty *property)
{
    Q_UNUSED(property)
}

QtProperty *QtAbstractPropertyManager::createProperty()
{
    return new QtProperty(this);
}
