// SPDX-License-Identifier: LGPL-2.1-or-later
#ifndef UTILS_ELEMENT_H
#define UTILS_ELEMENT_H

#include "utils_export.h"

#include <QObject>
#include <QString>

#include <memory>

namespace Assistant {

/*!
    \brief Base of every item an assistant page lists.

    The QML view binds to the properties and reads typeID() to choose how to
    show an element. Elements are created by the concrete assistant with the
    manager (or another owner) as parent; a Page only lists them.

    \sa Page, AbstractManager
*/
class UTILS_EXPORT Element : public QObject
{
    Q_OBJECT
    Q_PROPERTY(Type typeID READ typeID CONSTANT)
    Q_PROPERTY(bool enabled READ enabled WRITE setEnabled NOTIFY enabledChanged)
    Q_PROPERTY(QString forceTranslate READ getForceTranslate NOTIFY languageChanged)
    Q_PROPERTY(bool visible READ visible WRITE setVisible NOTIFY visibleChanged)

public:
    //! Kinds of element; the numbers are what the QML view compares against.
    enum Type {
        Title = 0,
        Spacer = 1,
        Description = 2,
        DescriptionExtended = 3,
        Int_1 = 4,
        NextModule = 5,
        CloseAssistant = 6,
        Url = 7,
        Separator = 8,
        SpinBox = 9,
        DoubleSpinBox = 10,
        Switch = 11,
        Icon = 12,
        Label = 13,
        Button = 14,
        Buttons = 15,
        Box = 16,
        CheckBox = 17,
        ComboBox = 18,
        Signal = 19
    };
    Q_ENUM(Type)

    Element(Element::Type type, QObject *parent);
    ~Element() override;

    /*!
        Makes the type known to QML as the uncreatable "Element" of module
        "Element" 1.0, so that views can write Element.SpinBox. Call it once
        before the view loads.
    */
    static void registerQmlElement();

    virtual Element::Type typeID() const;
    //! Puts an input value back to the one the element was created with; nothing in the base.
    virtual void restore();
    //! Tells bindings on forceTranslate to look their texts up again.
    virtual void translate();

    bool enabled() const;
    bool visible() const;
    //! Always empty: mentioning it in a QML text binding makes the binding follow language changes.
    QString getForceTranslate() const;

Q_SIGNALS:
    void elementClicked();
    void languageChanged();
    void enabledChanged(bool enabled);
    void visibleChanged(bool visible);

public Q_SLOTS:
    void setEnabled(bool enabled);
    void setVisible(bool visible);

private:
    Q_DISABLE_COPY(Element)
    struct Private;
    std::unique_ptr<Private> d;
};

} // namespace Assistant

#endif // UTILS_ELEMENT_H
