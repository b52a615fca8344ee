// SPDX-License-Identifier: LGPL-2.1-or-later
#include "qttreepropertybrowser.h"

#include "qtproperty.h"

#include <QEvent>
#include <QHBoxLayout>
#include <QHash>
#include <QHeaderView>
#include <QPointer>
#include <QTreeWidget>

namespace {

enum Column { NameColumn = 0, ValueColumn = 1 };

//! A property can be edited when it has a value and neither it nor a parent row is disabled.
bool editable(const QtBrowserItem *item)
{
    if (!item->property()->hasValue())
        return false;
    for (; item; item = item->parent()) {
        if (!item->property()->isEnabled())
            return false;
    }
    return true;
}

//! True when \a item is \a ancestor or lies below it.
bool within(const QtBrowserItem *item, const QtBrowserItem *ancestor)
{
    for (; item; item = item->parent()) {
        if (item == ancestor)
            return true;
    }
    return false;
}

} // namespace

struct QtTreePropertyBrowser::Private
{
    QtTreePropertyBrowser *q;
    QTreeWidget *tree;
    QHash<QtBrowserItem *, QTreeWidgetItem *> rows;
    QHash<QTreeWidgetItem *, QtBrowserItem *> itemOfRow;
    QPointer<QWidget> editor;
    QTreeWidgetItem *editorRow = nullptr;

    void retranslate();
    void showProperty(QtBrowserItem *item);
    void openEditor(QtBrowserItem *item);
    void closeEditor();
    void currentChanged(QtBrowserItem *item);
};

void QtTreePropertyBrowser::Private::retranslate()
{
    tree->setHeaderLabels({ QtTreePropertyBrowser::tr("Property"), QtTreePropertyBrowser::tr("Value") });
}

void QtTreePropertyBrowser::Private::showProperty(QtBrowserItem *item)
{
    QTreeWidgetItem *row = rows.value(item);
    const QtProperty *property = item->property();
    const bool hasValue = property->hasValue();
    row->setText(NameColumn, property->propertyName());
    row->setText(ValueColumn, hasValue ? property->valueText() : QString());
    row->setIcon(ValueColumn, hasValue ? property->valueIcon() : QIcon());
    for (int column : { NameColumn, ValueColumn }) {
        row->setToolTip(column, property->toolTip());
        row->setStatusTip(column, property->statusTip());
        row->setWhatsThis(column, property->whatsThis());
    }
    QFont font = row->font(NameColumn);
    font.setBold(property->isModified());
    row->setFont(NameColumn, font);
    // The tree draws the rows below a disabled row disabled as well.
    row->setFlags(property->isEnabled() ? Qt::ItemIsSelectable | Qt::ItemIsEnabled : Qt::ItemIsSelectable);
}

void QtTreePropertyBrowser::Private::openEditor(QtBrowserItem *item)
{
    QTreeWidgetItem *row = rows.value(item);
    if (editor && editorRow == row)
        return;
    closeEditor();
    if (!editable(item))
        return;
    QWidget *widget = q->createEditor(item->property(), tree->viewport());
    if (!widget)
        return;
    // The editor covers the value text it replaces.
    widget->setAutoFillBackground(true);
    tree->setItemWidget(row, ValueColumn, widget);
    editor = widget;
    editorRow = row;
}

void QtTreePropertyBrowser::Private::closeEditor()
{
    if (editor) {
        // The view deletes the widget later; it must not be seen until then.
        editor->hide();
        tree->removeItemWidget(editorRow, ValueColumn);
    }
    editor = nullptr;
    editorRow = nullptr;
}

void QtTreePropertyBrowser::Private::currentChanged(QtBrowserItem *item)
{
    QTreeWidgetItem *row = item ? rows.value(item) : nullptr;
    if (tree->currentItem() != row)
        tree->setCurrentItem(row);
    if (item)
        openEditor(item);
    else
        closeEditor();
}

QtTreePropertyBrowser::QtTreePropertyBrowser(QWidget *parent)
    : QtAbstractPropertyBrowser(parent)
    , d(new Private { this, new QTreeWidget(this), {}, {}, {}, nullptr })
{
    auto *layout = new QHBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(d->tree);

    d->tree->setColumnCount(2);
    d->tree->setEditTriggers(QAbstractItemView::NoEditTriggers);
    d->tree->setSelectionMode(QAbstractItemView::SingleSelection);
    d->tree->setAlternatingRowColors(true);
    d->tree->header()->setSectionResizeMode(QHeaderView::Stretch);
    d->retranslate();

    connect(d->tree, &QTreeWidget::currentItemChanged, this,
        [this](QTreeWidgetItem *row) { setCurrentItem(row ? d->itemOfRow.value(row) : nullptr); });
    connect(d->tree, &QTreeWidget::itemDoubleClicked, this, [this](QTreeWidgetItem *row) {
        QtBrowserItem *item = d->itemOfRow.value(row);
        setCurrentItem(item);
        d->openEditor(item);
        if (d->editor)
            d->editor->setFocus(Qt::MouseFocusReason);
    });
    connect(this, &QtAbstractPropertyBrowser::currentItemChanged, this,
        [this](QtBrowserItem *item) { d->currentChanged(item); });
}

QtTreePropertyBrowser::~QtTreePropertyBrowser()
{
    // The tree outlives d by a moment (children go in QWidget's destructor), and
    // clearing it reports a change of the current row.
    disconnect(d->tree, nullptr, this, nullptr);
    disconnect(this, &QtAbstractPropertyBrowser::currentItemChanged, this, nullptr);
}

void QtTreePropertyBrowser::itemInserted(QtBrowserItem *item, QtBrowserItem *afterItem)
{
    auto *row = new QTreeWidgetItem;
    QTreeWidgetItem *parentRow = item->parent() ? d->rows.value(item->parent()) : nullptr;
    QTreeWidgetItem *afterRow = afterItem ? d->rows.value(afterItem) : nullptr;
    if (parentRow) {
        parentRow->insertChild(afterRow ? parentRow->indexOfChild(afterRow) + 1 : 0, row);
        parentRow->setExpanded(true);
    } else {
        d->tree->insertTopLevelItem(afterRow ? d->tree->indexOfTopLevelItem(afterRow) + 1 : 0, row);
    }
    d->rows.insert(item, row);
    d->itemOfRow.insert(row, item);
    d->showProperty(item);
}

void QtTreePropertyBrowser::itemRemoved(QtBrowserItem *item)
{
    QTreeWidgetItem *row = d->rows.take(item);
    d->itemOfRow.remove(row);
    if (row == d->editorRow)
        d->closeEditor();
    delete row;
}

void QtTreePropertyBrowser::itemChanged(QtBrowserItem *item)
{
    d->showProperty(item);
    // A change above the current row may have disabled or enabled it.
    QtBrowserItem *current = currentItem();
    if (!current || !within(current, item))
        return;
    if (editable(current))
        d->openEditor(current);
    else
        d->closeEditor();
}

void QtTreePropertyBrowser::changeEvent(QEvent *event)
{
    if (event->type() == QEvent::LanguageChange)
        d->retranslate();
    QtAbstractPropertyBrowser::changeEvent(event);
}
