#include "tags/AccessibleTags.h"

#include "foundation/AccessibleRows.h"
#include "foundation/AccessibleWidgets.h"
#include "tags/oVIXDragTag.h"
#include "tags/oVIXTagListWidgetItem.h"

#include <QListWidget>
#include <QPointer>

namespace {

class AccessibleDragTag : public AccessibleRow
{
public:
    using AccessibleRow::AccessibleRow;

protected:
    QString purpose() const override
    {
        return tag()->isAdd() && tag()->text().isEmpty() ? oVIXDragTag::tr("Add") : tag()->text();
    }
    void press() override
    {
        if (tag()->isAdd())
            tag()->fnAddClicked();
        else
            emit tag()->doubleClick();
    }

private:
    oVIXDragTag *tag() const { return static_cast<oVIXDragTag *>(widget()); }
};

class AccessibleTagListItem : public AccessibleRow
{
public:
    using AccessibleRow::AccessibleRow;

    QAccessible::State state() const override
    {
        QAccessible::State state = AccessibleRow::state();
        if (const QListWidgetItem *row = item()) {
            state.selectable = row->flags().testFlag(Qt::ItemIsSelectable);
            state.selected = row->isSelected();
        }
        return state;
    }

protected:
    QString purpose() const override { return static_cast<QLabel *>(widget())->text(); }
    bool isPressable() const override { return AccessibleRow::isPressable() && item(); }
    void press() override
    {
        QListWidgetItem *row = item();
        const QPointer<QWidget> chip(widget());
        row->listWidget()->setCurrentItem(row);
        if (chip && item() == row) // whoever heard of that may have changed the list
            emit row->listWidget()->itemPressed(row);
    }
};

} // namespace

void AccessibleTags::install()
{
    static const bool added = [] {
        AccessibleWidgets::add<AccessibleRowList>("oVIXDragDropListWidget");
        AccessibleWidgets::add<AccessibleRowList>("oVIXTagListWidget");
        AccessibleWidgets::add<AccessibleDragTag>("oVIXDragTag");
        AccessibleWidgets::add<AccessibleTagListItem>("oVIXTagListWidgetItem");
        return true;
    }();
    Q_UNUSED(added)
    AccessibleWidgets::install();
}
