// SPDX-License-Identifier: LGPL-2.1-or-later
#ifndef UTILS_QTABSTRACTEDITORFACTORY_H
#define UTILS_QTABSTRACTEDITORFACTORY_H

#include "utils_export.h"

#include "qtabstractpropertymanager.h"
#include "qtproperty.h"

#include <QMap>
#include <QObject>
#include <QSet>

class QWidget;

/*!
    \brief What a browser knows of an editor factory: it asks for an editor of a
    property and drops the factory's tie to a manager it no longer shows.

    Derive from QtAbstractEditorFactory, not from this class.

    \sa QtAbstractEditorFactory, QtAbstractPropertyBrowser::setFactoryForManager()
*/
class UTILS_EXPORT QtAbstractEditorFactoryBase : public QObject
{
    Q_OBJECT

public:
    ~QtAbstractEditorFactoryBase() override;

    /*!
        Makes an editor widget for \a property, a child of \a parent, or returns
        null when the property's manager is not one of this factory's.
    */
    virtual QWidget *createEditor(QtProperty *property, QWidget *parent) = 0;

protected:
    explicit QtAbstractEditorFactoryBase(QObject *parent = nullptr);

    //! Forgets \a manager, as QtAbstractEditorFactory::removePropertyManager() does.
    virtual void breakConnection(QtAbstractPropertyManager *manager) = 0;

protected Q_SLOTS:
    //! Forgets a manager that is being destroyed; only its address is used.
    virtual void managerDestroyed(QObject *manager) = 0;

private:
    Q_DISABLE_COPY(QtAbstractEditorFactoryBase)
    friend class QtAbstractPropertyBrowser;
};

/*!
    \brief Makes editor widgets for the properties of managers of type
    \a PropertyManager.

    The factory keeps a set of managers. A subclass connects to a manager's
    value signals in connectPropertyManager() (to update the editors it has open),
    makes editors in createEditor(PropertyManager *, QtProperty *, QWidget *) and
    undoes its connections in disconnectPropertyManager(). A browser adds the
    manager when given the pair through QtAbstractPropertyBrowser::setFactoryForManager().
    Editors belong to the widget they are made for; the factory only keeps track
    of those still alive.
*/
template <class PropertyManager> class QtAbstractEditorFactory : public QtAbstractEditorFactoryBase
{
public:
    explicit QtAbstractEditorFactory(QObject *parent)
        : QtAbstractEditorFactoryBase(parent)
    { }

    /*!
        Makes an editor for \a property through the subclass when the property's
        manager is one of this factory's; null otherwise.
    */
    QWidget *createEditor(QtProperty *property, QWidget *parent) override
    {
        PropertyManager *manager = propertyManager(property);
        return manager ? createEditor(manager, property, parent) : nullptr;
    }

    //! Adds \a manager and calls connectPropertyManager() for it; once per manager.
    void addPropertyManager(PropertyManager *manager)
    {
        if (!manager || m_managers.contains(manager))
            return;
        m_managers.insert(manager, manager);
        connectPropertyManager(manager);
        const bool connected = connect(manager, SIGNAL(destroyed(QObject *)), this, SLOT(managerDestroyed(QObject *)));
        Q_ASSERT(connected);
        Q_UNUSED(connected)
    }

    //! Removes \a manager and calls disconnectPropertyManager() for it.
    void removePropertyManager(PropertyManager *manager)
    {
        if (!manager || !m_managers.remove(manager))
            return;
        disconnect(manager, SIGNAL(destroyed(QObject *)), this, SLOT(managerDestroyed(QObject *)));
        disconnectPropertyManager(manager);
    }

    //! The managers whose properties this factory makes editors for.
    QSet<PropertyManager *> propertyManagers() const
    {
        QSet<PropertyManager *> managers;
        for (PropertyManager *manager : qAsConst(m_managers))
            managers.insert(manager);
        return managers;
    }

    //! The manager of \a property if it is one of this factory's, else null.
    PropertyManager *propertyManager(QtProperty *property) const
    {
        const QtAbstractPropertyManager *owner = property ? property->propertyManager() : nullptr;
        for (PropertyManager *manager : qAsConst(m_managers)) {
            if (manager == owner)
                return manager;
        }
        return nullptr;
    }

protected:
    //! Connects \a manager's signals to the slots that keep open editors up to date.
    virtual void connectPropertyManager(PropertyManager *manager) = 0;
    //! Makes an editor for \a property of \a manager as a child of \a parent.
    virtual QWidget *createEditor(PropertyManager *manager, QtProperty *property, QWidget *parent) = 0;
    //! Undoes connectPropertyManager().
    virtual void disconnectPropertyManager(PropertyManager *manager) = 0;

    void managerDestroyed(QObject *manager) override
    {
        // The manager is past its own destructor: the key is compared, never cast.
        m_managers.remove(manager);
    }

private:
    void breakConnection(QtAbstractPropertyManager *manager) override
    {
        PropertyManager *found = nullptr;
        for (PropertyManager *candidate : qAsConst(m_managers)) {
            if (candidate == manager)
                found = candidate;
        }
        removePropertyManager(found);
    }

    // Keyed by the QObject address, which is all that is left of a manager when
    // destroyed() reaches managerDestroyed().
    QMap<QObject *, PropertyManager *> m_managers;
};

#endif // UTILS_QTABSTRACTEDITORFACTORY_H
