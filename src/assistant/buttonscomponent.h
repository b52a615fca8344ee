// SPDX-License-Identifier: LGPL-2.1-or-later
#ifndef UTILS_BUTTONSCOMPONENT_H
#define UTILS_BUTTONSCOMPONENT_H

#include "assistant/element.h"

#include <QStringList>

namespace Assistant {

/*!
    \brief A row (or grid) of exclusive buttons, one of them selected (type Buttons).

    The names are translated like the other texts. restore() puts back the
    selection given to the constructor.
*/
class UTILS_EXPORT ButtonsComponent : public Element
{
    Q_OBJECT
    Q_PROPERTY(QString iconText READ iconText WRITE setIconText NOTIFY iconTextChanged)
    Q_PROPERTY(QStringList names READ names WRITE setNames NOTIFY namesChanged)
    Q_PROPERTY(unsigned char selected READ selected WRITE setSelected NOTIFY selectedChanged)
    Q_PROPERTY(unsigned char spacing READ spacing CONSTANT)
    Q_PROPERTY(unsigned char columns READ columns CONSTANT)

public:
    ButtonsComponent(QObject *parent, unsigned char selected, QStringList names, QString iconText,
        unsigned char columns, unsigned char spacing);
    ~ButtonsComponent() override;

    QString iconText() const;
    QStringList names() const;
    unsigned char selected() const;
    unsigned char spacing() const;
    unsigned char columns() const;

    void restore() override;
    void translate() override;

Q_SIGNALS:
    void selectedChanged(unsigned char selected);
    void namesChanged(QStringList names);
    void iconTextChanged(QString text);

public Q_SLOTS:
    void setSelected(unsigned char selected);
    void setNames(const QStringList &names);
    void setIconText(const QString &text);

private:
    struct Private;
    std::unique_ptr<Private> d;
};

} // namespace Assistant

#endif // UTILS_BUTTONSCOMPONENT_H
