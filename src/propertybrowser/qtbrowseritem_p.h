// SPDX-License-Identifier: LGPL-2.1-or-later
#ifndef UTILS_QTBROWSERITEM_P_H
#define UTILS_QTBROWSERITEM_P_H

// An item's state, which its browser keeps up to date; not installed.

#include "qtbrowseritem.h"

struct QtBrowserItem::Private
{
    QtAbstractPropertyBrowser *browser;
    QtProperty *property;
    QtBrowserItem *parent;
    QList<QtBrowserItem *> children;
};

#endif // UTILS_QTBROWSERITEM_P_H
