// SPDX-License-Identifier: LGPL-2.1-or-later
#ifndef UTILS_BOXCOMPONENT_H
#define UTILS_BOXCOMPONENT_H

#include "assistant/element.h"

namespace Assistant {

//! A coloured box with a button text and a label (type Box); buttonColor starts "white".
class UTILS_EXPORT BoxComponent : public Element
{
    Q_OBJECT
    Q_PROPERTY(QString iconText READ iconText WRITE setIconText NOTIFY iconTextChanged)
    Q_PROPERTY(QString labelText READ labelText WRITE setLabelText NOTIFY labelTextChanged)
    Q_PROPERTY(QString buttonText READ buttonText WRITE setButtonText NOTIFY buttonTextChanged)
    Q_PROPERTY(QString buttonColor READ buttonColor WRITE setButtonColor NOTIFY buttonColorChanged)

public:
    BoxComponent(QObject *parent, QString buttonText, QString iconText, QString labelText);
    ~BoxComponent() override;

    QString iconText() const;
    QString labelText() const;
    QString buttonText() const;
    QString buttonColor() const;

    void translate() override;

Q_SIGNALS:
    void buttonTextChanged(QString text);
    void buttonColorChanged(QString color);
    void labelTextChanged(QString text);
    void iconTextChanged(QString text);

public Q_SLOTS:
    void setButtonText(const QString &text);
    void setButtonColor(const QString &color);
    void setLabelText(const QString &text);
    void setIconText(const QString &text);

private:
    struct Private;
    std::unique_ptr<Private> d;
};

} // namespace Assistant

#endif // UTILS_BOXCOMPONENT_H
