// SPDX-License-Identifier: LGPL-2.1-or-later
#include "widgets/buttonmanager.h"

#include <QMap>

namespace Utils {

struct ButtonManager::Private
{
    QMap<const QtProperty *, QString> values;
};

ButtonManager::ButtonManager(QObject *parent)
    : QtAbstractPropertyManager(parent)
    , d(new Private)
{ }

ButtonManager::~ButtonManager()
{
    // Here, not in the base destructor, so that uninitializeProperty() still runs.
    clear();
}

QString ButtonManager::value(const QtProperty *property) const
{
    return d->values.value(property);
}

void ButtonManager::setValue(QtProperty *property, const QString &value)
{
    const auto it = d->values.find(property);
    if (it == d->values.end() || it.value() == value)
        return;
    it.value() = value;
    Q_EMIT propertyChanged(property);
    Q_EMIT valueChanged(property, value);
}

void ButtonManager::emitClicked(QtProperty *property)
{
    if (!d->values.contains(property))
        return;
    Q_EMIT propertyChanged(property);
    Q_EMIT buttonClicked(property);
}

QString ButtonManager::valueText(const QtProperty *property) const
{
    return value(property);
}

void ButtonManager::initializeProperty(QtProperty *property)
{
    d->values.insert(property, QString());
}

void ButtonManager::uninitializeProperty(QtProperty *property)
{
    d->values.remove(property);
}

} // namespace Utils
