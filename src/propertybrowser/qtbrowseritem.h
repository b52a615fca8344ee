// SPDX-License-Identifier: LGPL-2.1-or-later
#ifndef UTILS_QTBROWSERITEM_H
#define UTILS_QTBROWSERITEM_H

#include "utils_export.h"

#include <QList>

#include <memory>

class QtAbstractPropertyBrowser;
class QtProperty;

/*!
    \brief One place where a browser shows a property: the property, the item it
    sits under and the items of its sub-properties.

    A property shown at the top and as a sub-property of two parents has three
    items in that browser. Items belong to their browser, which makes and deletes
    them as properties come and go.

    \sa QtAbstractPropertyBrowser::items(), QtAbstractPropertyBrowser::topLevelItems()
*/
class UTILS_EXPORT QtBrowserItem
{
public:
    //! The property shown here.
    QtProperty *property() const;
    //! The item this one sits under; null for a top-level item.
    QtBrowserItem *parent() const;
    //! The items of the property's sub-properties, in their order.
    QList<QtBrowserItem *> children() const;
    //! The browser that shows this item.
    QtAbstractPropertyBrowser *browser() const;

private:
    QtBrowserItem(QtAbstractPropertyBrowser *browser, QtProperty *property, QtBrowserItem *parent);
    ~QtBrowserItem();
    Q_DISABLE_COPY(QtBrowserItem)
    friend class QtAbstractPropertyBrowser;

    struct Private;
    std::unique_ptr<Private> d;
};

#endif // UTILS_QTBROWSERITEM_H
