// SPDX-License-Identifier: LGPL-2.1-or-later
#ifndef UTILS_COMBOBOXCOMPONENT_H
#define UTILS_COMBOBOXCOMPONENT_H

#include "assistant/element.h"

#include <QStringList>

namespace Assistant {

/*!
    \brief A choice from a list of items, with a label and a help text (type ComboBox).

    The items are translated like the other texts. The index is not checked
    against the item count: the view does that. restore() puts back the
    index given to the constructor.
*/
class UTILS_EXPORT ComboBoxComponent : public Element
{
    Q_OBJECT
    Q_PROPERTY(QStringList itemList READ itemList WRITE setItemList NOTIFY itemListChanged)
    Q_PROPERTY(int selectedIndex READ selectedIndex WRITE setSelectedIndex NOTIFY selectedIndexChanged)
    Q_PROPERTY(QString labelText READ labelText WRITE setLabelText NOTIFY labelTextChanged)
    Q_PROPERTY(QString helpText READ helpText WRITE setHelpText NOTIFY helpTextChanged)

public:
    ComboBoxComponent(QObject *parent, QStringList itemList, int selectedIndex, QString labelText, QString helpText);
    ~ComboBoxComponent() override;

    QStringList itemList() const;
    int selectedIndex() const;
    QString labelText() const;
    QString helpText() const;

    void restore() override;
    void translate() override;

Q_SIGNALS:
    void selectedIndexChanged(int index);
    void itemListChanged(QStringList items);
    void labelTextChanged(QString text);
    void helpTextChanged(QString text);

public Q_SLOTS:
    void setSelectedIndex(int index);
    void setItemList(const QStringList &items);
    void setLabelText(const QString &text);
    void setHelpText(const QString &text);

private:
    struct Private;
    std::unique_ptr<Private> d;
};

} // namespace Assistant

#endif // UTILS_COMBOBOXCOMPONENT_H
