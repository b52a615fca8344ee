// SPDX-License-Identifier: LGPL-2.1-or-later
#ifndef UTILS_QTABSTRACTPROPERTYMANAGER_H
#define UTILS_QTABSTRACTPROPERTYMANAGER_H

#include "utils_export.h"

#include <QIcon>
#include <QObject>
#include <QSet>
#include <QString>

#include <memory>

class QtProperty;

/*!
    \brief Makes properties of one kind, holds their values and announces every
    change, so that browsers and editor factories can follow.

    A subclass keeps the values (usually a map from QtProperty to value, filled in
    initializeProperty() and emptied in uninitializeProperty()), offers value()
    and setValue() of its own and writes values for display in valueText() and
    valueIcon(). A subclass calls clear() in its own destructor, so that its
    uninitializeProperty() still runs for the properties left.

    \sa QtProperty, QtAbstractEditorFactory
*/
class UTILS_EXPORT QtAbstractPropertyManager : public QObject
{
    Q_OBJECT

public:
    explicit QtAbstractPropertyManager(QObject *parent = nullptr);
    //! Deletes the properties still alive (see clear()).
    ~QtAbstractPropertyManager() override;

    //! Every property this manager made that is still alive.
    QSet<QtProperty *> properties() const;
    //! Deletes every property of this manager; each emits propertyDestroyed().
    void clear() const;
    /*!
        Makes a property through createProperty(), names it \a name (no signal)
        and lets initializeProperty() give it its first value. The manager owns
        the property.
    */
    QtProperty *addProperty(const QString &name = QString());

Q_SIGNALS:
    //! \a property became a sub-property of \a parent, right after \a after (null: first).
    void propertyInserted(QtProperty *property, QtProperty *parent, QtProperty *after);
    //! Something shown of \a property changed: its value, name, tips or flags.
    void propertyChanged(QtProperty *property);
    //! \a property is no longer a sub-property of \a parent.
    void propertyRemoved(QtProperty *property, QtProperty *parent);
    //! \a property is being deleted; the manager can still answer for it.
    void propertyDestroyed(QtProperty *property);

protected:
    //! True unless the subclass says the property is only a group; the default is true.
    virtual bool hasValue(const QtProperty *property) const;
    //! The icon shown beside the value; none by default.
    virtual QIcon valueIcon(const QtProperty *property) const;
    //! The value as text; empty by default.
    virtual QString valueText(const QtProperty *property) const;
    //! Gives a new property its first value.
    virtual void initializeProperty(QtProperty *property) = 0;
    //! Forgets the value of a property that is being deleted; the default does nothing.
    virtual void uninitializeProperty(QtProperty *property);
    //! Makes the object for a new property; override to return a subclass of QtProperty.
    virtual QtProperty *createProperty();

private:
    Q_DISABLE_COPY(QtAbstractPropertyManager)
    friend class QtProperty;

    struct Private;
    std::unique_ptr<Private> d;
};

#endif // UTILS_QTABSTRACTPROPERTYMANAGER_H
