// SPDX-License-Identifier: LGPL-2.1-or-later
#ifndef UTILS_LABELCOMPONENT_H
#define UTILS_LABELCOMPONENT_H

#include "assistant/element.h"

namespace Assistant {

//! A line of text with an icon text, indented by xPos pixels (type Label).
class UTILS_EXPORT LabelComponent : public Element
{
    Q_OBJECT
    Q_PROPERTY(QString iconText READ iconText WRITE setIconText NOTIFY iconTextChanged)
    Q_PROPERTY(QString labelText READ labelText WRITE setText NOTIFY textChanged)
    Q_PROPERTY(unsigned char xPos READ xPos CONSTANT)

public:
    LabelComponent(QObject *parent, const QString &text, const QString &iconText, unsigned char xPos);
    ~LabelComponent() override;

    QString iconText() const;
    QString labelText() const;
    unsigned char xPos() const;

    void translate() override;

Q_SIGNALS:
    void iconTextChanged(QString text);
    void textChanged(QString text);

public Q_SLOTS:
    void setIconText(const QString &text);
    void setText(const QString &text);

private:
    struct Private;
    std::unique_ptr<Private> d;
};

} // namespace Assistant

#endif // UTILS_LABELCOMPONENT_H
