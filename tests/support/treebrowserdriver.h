// SPDX-License-Identifier: LGPL-2.1-or-later
#ifndef UTILS_TESTS_TREEBROWSERDRIVER_H
#define UTILS_TESTS_TREEBROWSERDRIVER_H

#include <QHeaderView>
#include <QStringList>
#include <QTest>
#include <QTreeWidget>
#include <QTreeWidgetItemIterator>

namespace TestSupport {

/*!
    Drives a tree property browser as a user does: through its QTreeWidget, by
    the rows' texts. The browser must be shown.
*/
class TreeBrowserDriver
{
public:
    explicit TreeBrowserDriver(QWidget *browser)
        : m_tree(browser->findChild<QTreeWidget *>())
    { }

    QTreeWidget *tree() const { return m_tree; }

    //! The first row whose "Property" column reads \a name, at any depth; null if none.
    QTreeWidgetItem *row(const QString &name) const
    {
        const QList<QTreeWidgetItem *> rows = m_tree->findItems(name, Qt::MatchExactly | Qt::MatchRecursive, 0);
        return rows.isEmpty() ? nullptr : rows.first();
    }

    //! A point on the "Property" column of \a row, where no editor sits.
    QPoint namePoint(QTreeWidgetItem *row) const
    {
        m_tree->scrollToItem(row);
        const QRect rect = m_tree->visualItemRect(row);
        return QPoint(
            m_tree->header()->sectionViewportPosition(0) + m_tree->header()->sectionSize(0) / 2, rect.center().y());
    }

    //! Clicks the row named \a name, which makes it current.
    void click(const QString &name) const
    {
        QTest::mouseClick(m_tree->viewport(), Qt::LeftButton, Qt::NoModifier, namePoint(row(name)));
    }

    //! Double-clicks the row named \a name: a click, then the double click.
    void doubleClick(const QString &name) const
    {
        click(name);
        QTest::mouseDClick(m_tree->viewport(), Qt::LeftButton, Qt::NoModifier, namePoint(row(name)));
    }

    //! The rows as "name=value" with children in braces: "a=1{b=2 c=} d=".
    QString dump() const
    {
        QStringList texts;
        for (int i = 0; i < m_tree->topLevelItemCount(); ++i)
            texts << dump(m_tree->topLevelItem(i));
        return texts.join(QLatin1Char(' '));
    }

    //! The editor in a value cell; a closed editor leaves its cell at once.
    template <typename Editor = QWidget> Editor *openEditor() const
    {
        for (QTreeWidgetItemIterator it(m_tree); *it; ++it) {
            if (auto *editor = qobject_cast<Editor *>(m_tree->itemWidget(*it, 1)))
                return editor;
        }
        return nullptr;
    }

private:
    QString dump(QTreeWidgetItem *row) const
    {
        QString text = row->text(0) + QLatin1Char('=') + row->text(1);
        if (row->childCount() == 0)
            return text;
        QStringList children;
        for (int i = 0; i < row->childCount(); ++i)
            children << dump(row->child(i));
        return text + QLatin1Char('{') + children.join(QLatin1Char(' ')) + QLatin1Char('}');
    }

    QTreeWidget *m_tree;
};

} // namespace TestSupport

#endif // UTILS_TESTS_TREEBROWSERDRIVER_H
