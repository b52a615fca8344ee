// SPDX-License-Identifier: LGPL-2.1-or-later
#ifndef UTILS_QTPROPERTY_H
#define UTILS_QTPROPERTY_H

#include "utils_export.h"

#include <QIcon>
#include <QList>
#include <QString>

#include <memory>

class QtAbstractPropertyManager;

/*!
    \brief One row of a property browser: a name, tips, two flags and an ordered
    list of sub-properties. The value belongs to the manager that made the property.

    Properties are made by QtAbstractPropertyManager::addProperty() and belong to
    that manager: it deletes those left when it is cleared or destroyed. Deleting a
    property takes it out of every parent and every browser; its sub-properties
    live on and only lose it as a parent.

    A property may be the sub-property of several parents (a browser then shows it
    once under each), but never of itself or of one of its own sub-properties.
    Every change is announced through the manager's signals: a setter that changes
    something emits QtAbstractPropertyManager::propertyChanged(), inserting and
    removing sub-properties emit propertyInserted() and propertyRemoved() of the
    parent's manager.

    \sa QtAbstractPropertyManager, QtAbstractPropertyBrowser
*/
class UTILS_EXPORT QtProperty
{
public:
    /*!
        Leaves every parent (each parent's manager emits propertyRemoved()), then
        the manager emits propertyDestroyed() and forgets the property.
    */
    virtual ~QtProperty();

    //! The sub-properties in their order.
    QList<QtProperty *> subProperties() const;
    //! The manager that made this property and holds its value.
    QtAbstractPropertyManager *propertyManager() const;

    QString toolTip() const;
    QString statusTip() const;
    QString whatsThis() const;
    //! The text of the property's row; empty unless given to addProperty() or set.
    QString propertyName() const;
    //! True at first; a browser opens no editor for a disabled property.
    bool isEnabled() const;
    //! False at first; a browser shows a modified property's name in bold.
    bool isModified() const;

    //! False for a mere group of sub-properties; asks the manager.
    bool hasValue() const;
    //! The icon of the value, as the manager draws it.
    QIcon valueIcon() const;
    //! The value as text, as the manager writes it.
    QString valueText() const;

    void setToolTip(const QString &text);
    void setStatusTip(const QString &text);
    void setWhatsThis(const QString &text);
    void setPropertyName(const QString &text);
    void setEnabled(bool enable);
    void setModified(bool modified);

    //! Appends \a property to the sub-properties (see insertSubProperty()).
    void addSubProperty(QtProperty *property);
    /*!
        Puts \a property into the sub-properties right after \a afterProperty, or
        first when \a afterProperty is null or not a sub-property. Nothing happens
        when \a property is null, already a sub-property, this property or one of
        its parents at any depth (a property cannot contain itself).
    */
    void insertSubProperty(QtProperty *property, QtProperty *afterProperty);
    //! Takes \a property out of the sub-properties; it is not deleted.
    void removeSubProperty(QtProperty *property);

protected:
    //! Properties are made by their manager (QtAbstractPropertyManager::createProperty()).
    explicit QtProperty(QtAbstractPropertyManager *manager);
    //! Makes the manager emit propertyChanged() for this property.
    void propertyChanged();

private:
    Q_DISABLE_COPY(QtProperty)
    friend class QtAbstractPropertyManager;

    struct Private;
    std::unique_ptr<Private> d;
};

#endif // UTILS_QTPROPERTY_H
