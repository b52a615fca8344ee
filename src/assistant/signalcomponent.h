// SPDX-License-Identifier: LGPL-2.1-or-later
#ifndef UTILS_SIGNALCOMPONENT_H
#define UTILS_SIGNALCOMPONENT_H

#include "assistant/element.h"

namespace Assistant {

/*!
    \brief Live signal display: four background colours and a box's texts.

    Kept as it has always behaved: typeID() answers DoubleSpinBox (10), not
    Signal (19), so views that show it check for 10; the constructor ignores
    its first and third texts and fills fixed texts in; and the background
    colour setters emit on every call, even with the same colour, because the
    host uses them as a "new reading" pulse.
*/
class UTILS_EXPORT SignalComponent : public Element
{
    Q_OBJECT
    Q_PROPERTY(QString backgroundColor READ backgroundColor WRITE setBackgroundColor NOTIFY backgroundColorChanged)
    Q_PROPERTY(QString backgroundColor1 READ backgroundColor1 WRITE setBackgroundColor1 NOTIFY backgroundColorChanged1)
    Q_PROPERTY(QString backgroundColor2 READ backgroundColor2 WRITE setBackgroundColor2 NOTIFY backgroundColorChanged2)
    Q_PROPERTY(QString backgroundColor3 READ backgroundColor3 WRITE setBackgroundColor3 NOTIFY backgroundColorChanged3)
    Q_PROPERTY(QString iconText READ iconText WRITE setIconText NOTIFY iconTextChanged)
    Q_PROPERTY(QString labelText READ labelText WRITE setLabelText NOTIFY labelTextChanged)
    Q_PROPERTY(QString buttonText READ buttonText WRITE setButtonText NOTIFY buttonTextChanged)
    Q_PROPERTY(QString buttonColor READ buttonColor WRITE setButtonColor NOTIFY buttonColorChanged)

public:
    SignalComponent(QObject *parent, QString text, QString iconText, QString labelText);
    ~SignalComponent() override;

    QString backgroundColor() const;
    QString backgroundColor1() const;
    QString backgroundColor2() const;
    QString backgroundColor3() const;
    QString iconText() const;
    QString labelText() const;
    QString buttonText() const;
    QString buttonColor() const;
    //! Never set by this class; always 0.
    unsigned char nisDefaultText() const;

    //! Retranslates the icon text only; the fixed label and button texts stay.
    void translate() override;

Q_SIGNALS:
    void buttonTextChanged(QString text);
    void buttonColorChanged(QString color);
    void labelTextChanged(QString text);
    void iconTextChanged(QString text);
    void backgroundColorChanged();
    void backgroundColorChanged1();
    void backgroundColorChanged2();
    void backgroundColorChanged3();
    void dataColorChanged();
    void stateChanged(QString state);

public Q_SLOTS:
    void setButtonText(const QString &text);
    void setButtonColor(const QString &color);
    void setLabelText(const QString &text);
    void setIconText(const QString &text);
    void setBackgroundColor(const QString &color);
    void setBackgroundColor1(const QString &color);
    void setBackgroundColor2(const QString &color);
    void setBackgroundColor3(const QString &color);

private:
    struct Private;
    std::unique_ptr<Private> d;
};

} // namespace Assistant

#endif // UTILS_SIGNALCOMPONENT_H
