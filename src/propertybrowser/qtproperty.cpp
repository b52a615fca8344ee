// SPDX-License-Identifier: LGPL-2.1-or-later
#include "qtproperty.h"

#include "qtproperty_p.h"

namespace {

//! Stores \a value in \a field; true when that changed the field.
template <typename T> bool assign(T &field, const T &value)
{
    if (field == value)
        return false;
    field = value;
    return true;
}

//! True when \a target is \a root or lies anywhere below it.
bool contains(const QtProperty *root, const QtProperty *target)
{
    if (root == target)
        return true;
    const QList<QtProperty *> children = root->subProperties();
    for (const QtProperty *child : children) {
        if (contains(child, target))
            return true;
    }
    return false;
}

} // namespace

QtProperty::QtProperty(QtAbstractPropertyManager *manager)
    : d(new Private { manager, {}, {}, {}, {}, true, false, {}, {} })
{ }

QtProperty::~QtProperty()
{
    // Leave the parents first: browsers drop the rows under them while the
    // manager can still answer for this property.
    const QList<QtProperty *> parents = d->parents;
    for (QtProperty *parent : parents)
        parent->removeSubProperty(this);

    QtAbstractPropertyManager *manager = d->manager;
    Q_EMIT manager->propertyDestroyed(this);
    manager->uninitializeProperty(this);
    manager->d->properties.remove(this);

    for (QtProperty *child : qAsConst(d->subProperties))
        child->d->parents.removeOne(this);
}

QList<QtProperty *> QtProperty::subProperties() const
{
    return d->subProperties;
}

QtAbstractPropertyManager *QtProperty::propertyManager() const
{
    return d->manager;
}

QString QtProperty::toolTip() const
{
    return d->toolTip;
}

QString QtProperty::statusTip() const
{
    return d->statusTip;
}

QString QtProperty::whatsThis() const
{
    return d->whatsThis;
}

QString QtProperty::propertyName() const
{
    return d->name;
}

bool QtProperty::isEnabled() const
{
    return d->enabled;
}

bool QtProperty::isModified() const
{
    return d->modified;
}

bool QtProperty::hasValue() const
{
    return d->manager->hasValue(this);
}

QIcon QtProperty::valueIcon() const
{
    return d->manager->valueIcon(this);
}

QString QtProperty::valueText() const
{
    return d->manager->valueText(this);
}

void QtProperty::setToolTip(const QString &text)
{
    if (assign(d->toolTip, text))
        propertyChanged();
}

void QtProperty::setStatusTip(const QString &text)
{
    if (assign(d->statusTip, text))
        propertyChanged();
}

void QtProperty::setWhatsThis(const QString &text)
{
    if (assign(d->whatsThis, text))
        propertyChanged();
}

void QtProperty::setPropertyName(const QString &text)
{
    if (assign(d->name, text))
        propertyChanged();
}

void QtProperty::setEnabled(bool enable)
{
    if (assign(d->enabled, enable))
        propertyChanged();
}

void QtProperty::setModified(bool modified)
{
    if (assign(d->modified, modified))
        propertyChanged();
}

void QtProperty::addSubProperty(QtProperty *property)
{
    insertSubProperty(property, d->subProperties.isEmpty() ? nullptr : d->subProperties.last());
}

void QtProperty::insertSubProperty(QtProperty *property, QtProperty *afterProperty)
{
    if (!property || d->subProperties.contains(property) || contains(property, this))
        return;
    const int afterIndex = afterProperty ? d->subProperties.indexOf(afterProperty) : -1;
    if (afterIndex < 0)
        afterProperty = nullptr;
    d->subProperties.insert(afterIndex + 1, property);
    property->d->parents.append(this);
    Q_EMIT d->manager->propertyInserted(property, this, afterProperty);
}

void QtProperty::removeSubProperty(QtProperty *property)
{
    const int index = d->subProperties.indexOf(property);
    if (index < 0)
        return;
    d->subProperties.removeAt(index);
    property->d->parents.removeOne(this);
    Q_EMIT d->manager->propertyRemoved(property, this);
}

void QtProperty::propertyChanged()
{
    Q_EMIT d->manager->propertyChanged(this);
}
