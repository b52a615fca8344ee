// SPDX-License-Identifier: LGPL-2.1-or-later
#ifndef UTILS_QTPROPERTYBROWSER_H
#define UTILS_QTPROPERTYBROWSER_H

/*!
    \file qtpropertybrowser.h
    \brief The property-browser core under the name host code includes it by:
    QtProperty, QtAbstractPropertyManager, QtAbstractEditorFactoryBase,
    QtAbstractEditorFactory, QtBrowserItem and QtAbstractPropertyBrowser.

    The classes stand in the global namespace and follow the documented behaviour
    of the Qt Solutions property browser, so that a host, and the library's own
    editors, build unchanged against either. With the CMake option
    UTILS_SYSTEM_PROPERTYBROWSER the library uses an installed Qt Solutions
    property browser instead of this one.
*/

#include "qtabstracteditorfactory.h"
#include "qtabstractpropertybrowser.h"
#include "qtabstractpropertymanager.h"
#include "qtbrowseritem.h"
#include "qtproperty.h"

#endif // UTILS_QTPROPERTYBROWSER_H
