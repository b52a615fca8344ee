// SPDX-License-Identifier: LGPL-2.1-or-later
#include "qtbrowseritem.h"

#include "qtbrowseritem_p.h"

QtBrowserItem::QtBrowserItem(QtAbstractPropertyBrowser *browser, QtProperty *property, QtBrowserItem *parent)
    : d(new Private { browser, property, parent, {} })
{ }

QtBrowserItem::~QtBrowserItem() = default;

QtProperty *QtBrowserItem::property() const
{
    return d->property;
}

QtBrowserItem *QtBrowserItem::parent() const
{
    return d->parent;
}

QList<QtBrowserItem *> QtBrowserItem::children() const
{
    return d->children;
}

QtAbstractPropertyBrowser *QtBrowserItem::browser() const
{
    return d->browser;
}
