#include "foundation/AccessibleRows.h"

#include <QListWidget>

namespace {

/// The list that shows @p row as a row widget, if any.
QListWidget *listOf(const QWidget *row)
{
    const QWidget *viewport = row->parentWidget();
    auto *list = viewport ? qobject_cast<QListWidget *>(viewport->parentWidget()) : nullptr;
    return list && list->viewport() == viewport ? list : nullptr;
}

QListWidgetItem *itemOf(const QListWidget *list, const QWidget *row)
{
    if (QListWidgetItem *there = list->itemAt(row->geometry().center()); there && list->itemWidget(there) == row)
        return there;
    for (int i = 0; i < list->count(); ++i) { // one that has no place yet
        if (list->itemWidget(list->item(i)) == row)
            return list->item(i);
    }
    return nullptr;
}

} // namespace

AccessibleRowList::AccessibleRowList(QWidget *list) : QAccessibleWidget(list, QAccessible::List)
{ }

int AccessibleRowList::childCount() const
{
    return list()->count();
}

QAccessibleInterface *AccessibleRowList::child(int row) const
{
    QListWidgetItem *item = list()->item(row);
    if (!item)
        return nullptr;
    QWidget *widget = list()->itemWidget(item);
    return QAccessible::queryAccessibleInterface(widget ? widget : list()->viewport());
}

int AccessibleRowList::indexOfChild(const QAccessibleInterface *child) const
{
    const auto *row = child ? qobject_cast<QWidget *>(child->object()) : nullptr;
    return row && listOf(row) == list() ? list()->row(itemOf(list(), row)) : -1;
}

QAccessibleInterface *AccessibleRowList::childAt(int x, int y) const
{
    const QListWidgetItem *item = list()->itemAt(list()->viewport()->mapFromGlobal(QPoint(x, y)));
    return item ? child(list()->row(item)) : nullptr;
}

QAccessibleInterface *AccessibleRowList::focusChild() const
{
    return list()->hasFocus() ? child(list()->currentRow()) : QAccessibleWidget::focusChild();
}

QListWidget *AccessibleRowList::list() const
{
    return static_cast<QListWidget *>(widget());
}

AccessibleRow::AccessibleRow(QWidget *widget) : AccessiblePressable(widget, QAccessible::ListItem)
{ }

QAccessibleInterface *AccessibleRow::parent() const
{
    QListWidget *list = listOf(widget());
    return list ? QAccessible::queryAccessibleInterface(list) : AccessiblePressable::parent();
}

QAccessible::State AccessibleRow::state() const
{
    QAccessible::State state = AccessiblePressable::state();
    const QListWidget *list = listOf(widget());
    if (!list || list->focusPolicy() == Qt::NoFocus)
        return state;
    state.focusable = widget()->isEnabled();
    state.focused = list->hasFocus() && list->currentItem() && list->itemWidget(list->currentItem()) == widget();
    return state;
}

QListWidgetItem *AccessibleRow::item() const
{
    const QListWidget *list = listOf(widget());
    return list ? itemOf(list, widget()) : nullptr;
}
