// SPDX-License-Identifier: LGPL-2.1-or-later
#ifndef UTILS_QTTREEPROPERTYBROWSER_H
#define UTILS_QTTREEPROPERTYBROWSER_H

#include "utils_export.h"

#include "qtabstractpropertybrowser.h"

#include <memory>

class QEvent;

/*!
    \brief A property browser that shows properties as rows of a tree with the
    columns "Property" and "Value".

    A row shows the property's name and, for a property with a value, the
    manager's value text and icon; sub-properties are child rows, expanded at
    first. A disabled property is drawn disabled, with its sub-properties; a
    modified one has its name in bold. Tool, status and "What's this" tips come
    from the property.

    The row the user makes current (by mouse or keyboard, or through
    setCurrentItem()) gets an editor in its value column from the factory set for
    its manager, and a double click opens one and gives it the focus. There is one
    editor at a time: it is closed when another row becomes current, when its
    property is disabled or removed from the browser, and with the browser.

    \sa QtAbstractPropertyBrowser
*/
class UTILS_EXPORT QtTreePropertyBrowser : public QtAbstractPropertyBrowser
{
    Q_OBJECT

public:
    explicit QtTreePropertyBrowser(QWidget *parent = nullptr);
    ~QtTreePropertyBrowser() override;

protected:
    void itemInserted(QtBrowserItem *item, QtBrowserItem *afterItem) override;
    void itemRemoved(QtBrowserItem *item) override;
    void itemChanged(QtBrowserItem *item) override;
    void changeEvent(QEvent *event) override;

private:
    Q_DISABLE_COPY(QtTreePropertyBrowser)
    struct Private;
    std::unique_ptr<Private> d;
};

#endif // UTILS_QTTREEPROPERTYBROWSER_H
