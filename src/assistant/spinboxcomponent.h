// SPDX-License-Identifier: LGPL-2.1-or-later
#ifndef UTILS_SPINBOXCOMPONENT_H
#define UTILS_SPINBOXCOMPONENT_H

#include "assistant/element.h"

namespace Assistant {

/*!
    \brief Integer input with a range and a step (type SpinBox).

    The value is not clamped into spinFrom..spinTo: the view enforces the
    range. restore() puts back the value given to the constructor.
*/
class UTILS_EXPORT SpinBoxComponent : public Element
{
    Q_OBJECT
    Q_PROPERTY(QString textInput READ textInput WRITE setTextInput NOTIFY vTextChanged)
    Q_PROPERTY(QString iconText READ iconText WRITE setIconText NOTIFY iconTextChanged)
    Q_PROPERTY(QString spinText READ spinText WRITE setSpinText NOTIFY spinTextChanged)
    Q_PROPERTY(int spinValue READ spinValue WRITE setSpinValue NOTIFY spinValueChanged)
    Q_PROPERTY(int spinFrom READ spinFrom WRITE setSpinFrom NOTIFY spinFromChanged)
    Q_PROPERTY(int spinTo READ spinTo WRITE setSpinTo NOTIFY spinToChanged)
    Q_PROPERTY(int step READ step WRITE setStep NOTIFY stepChanged)

public:
    SpinBoxComponent(
        QObject *parent, int value, int from, int to, int step, const QString &iconText, const QString &spinText);
    ~SpinBoxComponent() override;

    QString textInput() const;
    //! Stores the text typed into the view; emits vTextChanged when it differs.
    void setTextInput(const QString &text);
    QString iconText() const;
    QString spinText() const;
    int spinValue() const;
    int spinFrom() const;
    int spinTo() const;
    int step() const;

    void restore() override;
    void translate() override;

Q_SIGNALS:
    void spinValueChanged(int value);
    void spinFromChanged(int from);
    void spinToChanged(int to);
    void stepChanged(int step);
    void iconTextChanged(QString text);
    void spinTextChanged(QString text);
    void emitButtonClicked();
    void editingFinished();
    void vTextChanged(QString text);

public Q_SLOTS:
    void setSpinValue(int value);
    void setSpinFrom(int from);
    void setSpinTo(int to);
    void setStep(int step);
    void setSpinText(const QString &text);
    void setIconText(const QString &text);
    //! The view's click on the component: emits emitButtonClicked(), then the element's elementClicked() signal.
    void elementClicked();
    //! The view's typed text is complete: stores it (vTextChanged on a change), then emits editingFinished().
    void vTestFinished(const QString &text);

private:
    struct Private;
    std::unique_ptr<Private> d;
};

} // namespace Assistant

#endif // UTILS_SPINBOXCOMPONENT_H
