// SPDX-License-Identifier: LGPL-2.1-or-later
#include "qtabstractpropertybrowser.h"

#include "qtbrowseritem_p.h"

#include <QHash>
#include <QPair>

namespace {

using FactoryAndManager = QPair<const QObject *, const QObject *>;

/*!
    How many browsers pair each factory with each manager, over the whole
    process: a factory forgets a manager only when no browser pairs them any more.
*/
QHash<FactoryAndManager, int> &pairings()
{
    static QHash<FactoryAndManager, int> counts;
    return counts;
}

//! A factory set for a manager in one browser.
struct Binding
{
    QtAbstractPropertyManager *manager;
    QtAbstractEditorFactoryBase *factory;
    // Addresses kept for destroyed(), when the objects can no longer be cast.
    const QObject *managerObject;
    const QObject *factoryObject;
    QMetaObject::Connection managerGone;
    QMetaObject::Connection factoryGone;
};

//! A manager some shown property belongs to: how many items, and our connections.
struct ManagerUse
{
    int items = 0;
    QList<QMetaObject::Connection> connections;
};

} // namespace

struct QtAbstractPropertyBrowser::Private
{
    QtAbstractPropertyBrowser *q;
    QList<QtProperty *> topLevel;
    QList<QtBrowserItem *> topItems; // beside topLevel, same order
    QHash<QtProperty *, QList<QtBrowserItem *>> items;
    QHash<QtAbstractPropertyManager *, ManagerUse> managers;
    QList<Binding> bindings;
    QtBrowserItem *current = nullptr;

    QtBrowserItem *createItem(QtProperty *property, QtBrowserItem *parent, QtBrowserItem *after);
    void deleteItem(QtBrowserItem *item);
    void useManager(QtAbstractPropertyManager *manager);
    void releaseManager(QtAbstractPropertyManager *manager);
    int bindingIndex(const QtAbstractPropertyManager *manager) const;
    void releaseBinding(int index, bool breakIfLast);
    void dropBindingsOf(const QObject *gone);

    void propertyInserted(QtProperty *property, QtProperty *parent, QtProperty *after);
    void propertyRemoved(QtProperty *property, QtProperty *parent);
    void propertyChanged(QtProperty *property);
    void propertyDestroyed(QtProperty *property);
};

/*!
    Makes the item of \a property under \a parent (null: at the top, where the
    caller has made room) after \a after, then the items of its sub-properties.
*/
QtBrowserItem *QtAbstractPropertyBrowser::Private::createItem(
    QtProperty *property, QtBrowserItem *parent, QtBrowserItem *after)
{
    auto *item = new QtBrowserItem(q, property, parent);
    if (parent) {
        const int index = after ? parent->d->children.indexOf(after) + 1 : 0;
        parent->d->children.insert(index, item);
    } else {
        topItems.insert(topLevel.indexOf(property), item);
    }
    items[property].append(item);
    useManager(property->propertyManager());
    q->itemInserted(item, after);

    QtBrowserItem *previous = nullptr;
    const QList<QtProperty *> children = property->subProperties();
    for (QtProperty *child : children)
        previous = createItem(child, item, previous);
    return item;
}

//! Deletes \a item after its children, telling the subclass about each.
void QtAbstractPropertyBrowser::Private::deleteItem(QtBrowserItem *item)
{
    while (!item->d->children.isEmpty())
        deleteItem(item->d->children.last());
    if (current == item)
        q->setCurrentItem(nullptr);
    q->itemRemoved(item);

    QtProperty *property = item->property();
    if (QtBrowserItem *parent = item->parent()) {
        parent->d->children.removeOne(item);
    } else {
        const int index = topItems.indexOf(item);
        topItems.removeAt(index);
        topLevel.removeAt(index);
    }
    QList<QtBrowserItem *> &shown = items[property];
    shown.removeOne(item);
    if (shown.isEmpty())
        items.remove(property);
    releaseManager(property->propertyManager());
    delete item;
}

void QtAbstractPropertyBrowser::Private::useManager(QtAbstractPropertyManager *manager)
{
    ManagerUse &use = managers[manager];
    if (use.items++ > 0)
        return;
    use.connections = {
        QObject::connect(manager, &QtAbstractPropertyManager::propertyInserted, q,
            [this](QtProperty *property, QtProperty *parent, QtProperty *after) {
                propertyInserted(property, parent, after);
            }),
        QObject::connect(manager, &QtAbstractPropertyManager::propertyRemoved, q,
            [this](QtProperty *property, QtProperty *parent) { propertyRemoved(property, parent); }),
        QObject::connect(manager, &QtAbstractPropertyManager::propertyChanged, q,
            [this](QtProperty *property) { propertyChanged(property); }),
        QObject::connect(manager, &QtAbstractPropertyManager::propertyDestroyed, q,
            [this](QtProperty *property) { propertyDestroyed(property); }),
    };
}

void QtAbstractPropertyBrowser::Private::releaseManager(QtAbstractPropertyManager *manager)
{
    auto it = managers.find(manager);
    if (it == managers.end() || --it->items > 0)
        return;
    for (const QMetaObject::Connection &connection : qAsConst(it->connections))
        QObject::disconnect(connection);
    managers.erase(it);
}

int QtAbstractPropertyBrowser::Private::bindingIndex(const QtAbstractPropertyManager *manager) const
{
    for (int i = 0; i < bindings.size(); ++i) {
        if (bindings.at(i).manager == manager)
            return i;
    }
    return -1;
}

/*!
    Drops the binding at \a index. When no browser pairs its factory and manager
    any more and \a breakIfLast is set (both are alive), the factory forgets the manager.
*/
void QtAbstractPropertyBrowser::Private::releaseBinding(int index, bool breakIfLast)
{
    const Binding binding = bindings.takeAt(index);
    QObject::disconnect(binding.managerGone);
    QObject::disconnect(binding.factoryGone);
    const FactoryAndManager key(binding.factoryObject, binding.managerObject);
    auto it = pairings().find(key);
    if (it == pairings().end() || --it.value() > 0)
        return;
    pairings().erase(it);
    if (breakIfLast)
        binding.factory->breakConnection(binding.manager);
}

//! A manager or factory is being destroyed: its pairs end without further calls.
void QtAbstractPropertyBrowser::Private::dropBindingsOf(const QObject *gone)
{
    for (int i = bindings.size() - 1; i >= 0; --i) {
        if (bindings.at(i).managerObject == gone || bindings.at(i).factoryObject == gone)
            releaseBinding(i, false);
    }
}

void QtAbstractPropertyBrowser::Private::propertyInserted(QtProperty *property, QtProperty *parent, QtProperty *after)
{
    const QList<QtBrowserItem *> parentItems = items.value(parent);
    for (QtBrowserItem *parentItem : parentItems) {
        QtBrowserItem *afterItem = nullptr;
        for (QtBrowserItem *child : qAsConst(parentItem->d->children)) {
            if (after && child->property() == after)
                afterItem = child;
        }
        createItem(property, parentItem, afterItem);
    }
}

void QtAbstractPropertyBrowser::Private::propertyRemoved(QtProperty *property, QtProperty *parent)
{
    const QList<QtBrowserItem *> parentItems = items.value(parent);
    for (QtBrowserItem *parentItem : parentItems) {
        const QList<QtBrowserItem *> children = parentItem->d->children;
        for (QtBrowserItem *child : children) {
            if (child->property() == property)
                deleteItem(child);
        }
    }
}

void QtAbstractPropertyBrowser::Private::propertyChanged(QtProperty *property)
{
    const QList<QtBrowserItem *> shown = items.value(property);
    for (QtBrowserItem *item : shown)
        q->itemChanged(item);
}

void QtAbstractPropertyBrowser::Private::propertyDestroyed(QtProperty *property)
{
    // Its places under parents went with propertyRemoved(); only the top is left.
    q->removeProperty(property);
}

QtAbstractPropertyBrowser::QtAbstractPropertyBrowser(QWidget *parent)
    : QWidget(parent)
    , d(new Private { this, {}, {}, {}, {}, {}, nullptr })
{ }

QtAbstractPropertyBrowser::~QtAbstractPropertyBrowser()
{
    // The subclass is gone: items are deleted without telling it. Connections
    // are cut now, since managers and factories may be our own children and
    // would report their destruction after d is gone.
    for (const ManagerUse &use : qAsConst(d->managers)) {
        for (const QMetaObject::Connection &connection : use.connections)
            disconnect(connection);
    }
    while (!d->bindings.isEmpty())
        d->releaseBinding(d->bindings.size() - 1, true);

    QList<QtBrowserItem *> pending = d->topItems;
    while (!pending.isEmpty()) {
        QtBrowserItem *item = pending.takeLast();
        pending += item->d->children;
        delete item;
    }
}

QList<QtProperty *> QtAbstractPropertyBrowser::properties() const
{
    return d->topLevel;
}

QList<QtBrowserItem *> QtAbstractPropertyBrowser::items(QtProperty *property) const
{
    return d->items.value(property);
}

QtBrowserItem *QtAbstractPropertyBrowser::topLevelItem(QtProperty *property) const
{
    const int index = d->topLevel.indexOf(property);
    return index < 0 ? nullptr : d->topItems.at(index);
}

QList<QtBrowserItem *> QtAbstractPropertyBrowser::topLevelItems() const
{
    return d->topItems;
}

void QtAbstractPropertyBrowser::clear()
{
    while (!d->topItems.isEmpty())
        d->deleteItem(d->topItems.last());
}

void QtAbstractPropertyBrowser::unsetFactoryForManager(QtAbstractPropertyManager *manager)
{
    const int index = d->bindingIndex(manager);
    if (index >= 0)
        d->releaseBinding(index, true);
}

QtBrowserItem *QtAbstractPropertyBrowser::currentItem() const
{
    return d->current;
}

void QtAbstractPropertyBrowser::setCurrentItem(QtBrowserItem *item)
{
    if (item == d->current || (item && item->browser() != this))
        return;
    d->current = item;
    Q_EMIT currentItemChanged(item);
}

QtBrowserItem *QtAbstractPropertyBrowser::addProperty(QtProperty *property)
{
    return insertProperty(property, d->topLevel.isEmpty() ? nullptr : d->topLevel.last());
}

QtBrowserItem *QtAbstractPropertyBrowser::insertProperty(QtProperty *property, QtProperty *afterProperty)
{
    if (!property || d->topLevel.contains(property))
        return nullptr;
    const int afterIndex = afterProperty ? d->topLevel.indexOf(afterProperty) : -1;
    d->topLevel.insert(afterIndex + 1, property);
    return d->createItem(property, nullptr, afterIndex < 0 ? nullptr : d->topItems.at(afterIndex));
}

void QtAbstractPropertyBrowser::removeProperty(QtProperty *property)
{
    if (QtBrowserItem *item = topLevelItem(property))
        d->deleteItem(item);
}

QWidget *QtAbstractPropertyBrowser::createEditor(QtProperty *property, QWidget *parent)
{
    const int index = property ? d->bindingIndex(property->propertyManager()) : -1;
    return index < 0 ? nullptr : d->bindings.at(index).factory->createEditor(property, parent);
}

bool QtAbstractPropertyBrowser::addFactory(QtAbstractPropertyManager *manager, QtAbstractEditorFactoryBase *factory)
{
    if (!manager || !factory)
        return false;
    const int index = d->bindingIndex(manager);
    if (index >= 0) {
        if (d->bindings.at(index).factory == factory)
            return false;
        d->releaseBinding(index, true);
    }
    Binding binding { manager, factory, manager, factory, {}, {} };
    const auto gone = [this](QObject *object) { d->dropBindingsOf(object); };
    binding.managerGone = connect(manager, &QObject::destroyed, this, gone);
    binding.factoryGone = connect(factory, &QObject::destroyed, this, gone);
    d->bindings.append(binding);
    ++pairings()[FactoryAndManager(factory, manager)];
    return true;
}
