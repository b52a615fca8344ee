// SPDX-License-Identifier: LGPL-2.1-or-later
#ifndef UTILS_QTABSTRACTPROPERTYBROWSER_H
#define UTILS_QTABSTRACTPROPERTYBROWSER_H

#include "utils_export.h"

#include "qtabstracteditorfactory.h"
#include "qtbrowseritem.h"

#include <QList>
#include <QWidget>

#include <memory>

class QtAbstractPropertyManager;
class QtProperty;

/*!
    \brief Shows a list of top-level properties with their sub-properties and
    opens editors made by the factories set for their managers.

    The browser follows the managers of everything it shows: a sub-property
    inserted or removed anywhere, a changed value or name, and a deleted
    property are reflected at once. It keeps a QtBrowserItem for every place a
    property is shown and tells the subclass about items through itemInserted(),
    itemRemoved() (children before their parent) and itemChanged(). The subclass
    draws them and asks createEditor() for an editor when the user wants to edit.

    One factory can serve several browsers; a factory is told to forget a
    manager (QtAbstractEditorFactoryBase::breakConnection()) when the last
    browser that paired them lets go.

    \sa QtTreePropertyBrowser, QtAbstractEditorFactory
*/
class UTILS_EXPORT QtAbstractPropertyBrowser : public QWidget
{
    Q_OBJECT

public:
    explicit QtAbstractPropertyBrowser(QWidget *parent = nullptr);
    ~QtAbstractPropertyBrowser() override;

    //! The top-level properties in their order.
    QList<QtProperty *> properties() const;
    //! Every item that shows \a property in this browser.
    QList<QtBrowserItem *> items(QtProperty *property) const;
    //! The top-level item of \a property, or null when it is not at the top.
    QtBrowserItem *topLevelItem(QtProperty *property) const;
    //! The top-level items in their order.
    QList<QtBrowserItem *> topLevelItems() const;
    //! Removes every top-level property (the properties themselves live on).
    void clear();

    /*!
        Lets \a factory make the editors for the properties of \a manager in this
        browser, in place of any factory set before for that manager.
    */
    template <class PropertyManager>
    void setFactoryForManager(PropertyManager *manager, QtAbstractEditorFactory<PropertyManager> *factory)
    {
        if (addFactory(manager, factory))
            factory->addPropertyManager(manager);
    }
    //! Leaves the properties of \a manager without editors in this browser.
    void unsetFactoryForManager(QtAbstractPropertyManager *manager);

    //! The item the user works on, or null.
    QtBrowserItem *currentItem() const;
    //! Makes \a item (one of this browser's, or null) the current item.
    void setCurrentItem(QtBrowserItem *item);

Q_SIGNALS:
    //! The current item became \a current (null: none).
    void currentItemChanged(QtBrowserItem *current);

public Q_SLOTS:
    //! Appends \a property at the top (see insertProperty()).
    QtBrowserItem *addProperty(QtProperty *property);
    /*!
        Shows \a property at the top, right after \a afterProperty, or first when
        that is null or not at the top, together with all its sub-properties.
        Returns the new item, or null when \a property is null or already at the top.
    */
    QtBrowserItem *insertProperty(QtProperty *property, QtProperty *afterProperty);
    //! Takes \a property and its sub-properties off the top; the property lives on.
    void removeProperty(QtProperty *property);

protected:
    //! \a item was added after \a afterItem among its siblings (null: first).
    virtual void itemInserted(QtBrowserItem *item, QtBrowserItem *afterItem) = 0;
    //! \a item is about to be deleted; its children are gone already.
    virtual void itemRemoved(QtBrowserItem *item) = 0;
    //! Something shown of \a item's property changed.
    virtual void itemChanged(QtBrowserItem *item) = 0;
    //! An editor for \a property from the factory set for its manager, or null.
    virtual QWidget *createEditor(QtProperty *property, QWidget *parent);

private:
    Q_DISABLE_COPY(QtAbstractPropertyBrowser)
    //! Pairs \a manager with \a factory; false when they were paired already.
    bool addFactory(QtAbstractPropertyManager *manager, QtAbstractEditorFactoryBase *factory);

    struct Private;
    std::unique_ptr<Private> d;
};

#endif // UTILS_QTABSTRACTPROPERTYBROWSER_H
