#pragma once

#include "foundation/AccessiblePressable.h"

class QListWidget;
class QListWidgetItem;

/// A list of row widgets as assistive tools see it: its children are the rows' own interfaces, in the order of the
/// rows, so that what a row offers (its press, its buttons, its editor) can be reached. The toolkit's own interface of
/// a list knows the items only.
class AccessibleRowList : public QAccessibleWidget
{
public:
    explicit AccessibleRowList(QWidget *list);

    int childCount() const override;
    /// The row's widget; the viewport for a row that has none yet, since the toolkit tells of rows by their numbers.
    QAccessibleInterface *child(int row) const override;
    int indexOfChild(const QAccessibleInterface *child) const override;
    QAccessibleInterface *childAt(int x, int y) const override;
    QAccessibleInterface *focusChild() const override;

private:
    QListWidget *list() const;
};

/// A widget that is a row of such a list, or stands alone: a list item, which the list's current item has the focus of.
class AccessibleRow : public AccessiblePressable
{
public:
    explicit AccessibleRow(QWidget *widget);

    /// The list, which has the row's viewport for a child too.
    QAccessibleInterface *parent() const override;
    QAccessible::State state() const override;

protected:
    /// Null for a row that stands alone.
    QListWidgetItem *item() const;
};
