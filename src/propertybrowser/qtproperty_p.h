// SPDX-License-Identifier: LGPL-2.1-or-later
#ifndef UTILS_QTPROPERTY_P_H
#define UTILS_QTPROPERTY_P_H

// The state a property and its manager share; not installed.

#include "qtabstractpropertymanager.h"
#include "qtproperty.h"

#include <QList>
#include <QSet>
#include <QString>

struct QtProperty::Private
{
    QtAbstractPropertyManager *manager;
    QString name;
    QString toolTip;
    QString statusTip;
    QString whatsThis;
    bool enabled = true;
    bool modified = false;
    QList<QtProperty *> subProperties;
    // A property may sit under several parents; the list keeps each once.
    QList<QtProperty *> parents;
};

struct QtAbstractPropertyManager::Private
{
    QSet<QtProperty *> properties;
};

#endif // UTILS_QTPROPERTY_P_H
