// SPDX-License-Identifier: LGPL-2.1-or-later
#ifndef UTILS_BUTTONMANAGER_H
#define UTILS_BUTTONMANAGER_H

#include "utils_export.h"

#include "qtpropertybrowser.h"

#include <memory>

namespace Utils {

/*!
    \brief The manager of button properties: rows of a property browser that show
    a push button with a text and report its clicks.

    The value of a button property is the button's text (empty at first).
    Editors come from ButtonFactory.

    \sa ButtonFactory, ButtonEditor
*/
class UTILS_EXPORT ButtonManager : public QtAbstractPropertyManager
{
    Q_OBJECT

public:
    explicit ButtonManager(QObject *parent = nullptr);
    ~ButtonManager() override;

    //! The button text of \a property; empty for a property of another manager.
    QString value(const QtProperty *property) const;

public Q_SLOTS:
    /*!
        Gives \a property the button text \a value. Only a real change of a
        property of this manager emits propertyChanged() and then valueChanged().
    */
    void setValue(QtProperty *property, const QString &value);
    /*!
        Reports a click on the button of \a property (one of this manager's):
        emits propertyChanged() and then buttonClicked().
    */
    void emitClicked(QtProperty *property);

Q_SIGNALS:
    //! The button text of \a property became \a value.
    void valueChanged(QtProperty *property, const QString &value);
    //! The user clicked the button of \a property.
    void buttonClicked(QtProperty *property);

protected:
    //! The button text.
    QString valueText(const QtProperty *property) const override;
    void initializeProperty(QtProperty *property) override;
    void uninitializeProperty(QtProperty *property) override;

private:
    Q_DISABLE_COPY(ButtonManager)
    struct Private;
    std::unique_ptr<Private> d;
};

} // namespace Utils

#endif // UTILS_BUTTONMANAGER_H
