#include "browser/AccessibleSceneItem.h"

#include "browser/VelmoSceneItem.h"
#include "foundation/AccessibleWidgets.h"

#include <QListWidget>

void AccessibleSceneItem::install()
{
    static const bool installed = [] {
        AccessibleWidgets::add("VelmoSceneItem", [](QWidget *widget) -> QAccessibleInterface * {
            return new AccessibleSceneItem(widget);
        });
        AccessibleWidgets::install();
        return true;
    }();
    Q_UNUSED(installed)
}

AccessibleSceneItem::AccessibleSceneItem(QWidget *widget) : AccessiblePressable(widget, QAccessible::ListItem)
{ }

QAccessible::State AccessibleSceneItem::state() const
{
    QAccessible::State state = AccessiblePressable::state();
    state.selectable = row()->isEnabled();
    state.selected = row()->isSelected();
    state.checkable = row()->isAddVisible();
    state.checked = row()->isAddEnabled();
    return state;
}

QStringList AccessibleSceneItem::actionNames() const
{
    QStringList names = AccessiblePressable::actionNames();
    if (row()->isEnabled() && row()->isAddVisible())
        names << toggleAction();
    return names;
}

void AccessibleSceneItem::doAction(const QString &action)
{
    if (action != toggleAction())
        AccessiblePressable::doAction(action);
    else if (row()->isEnabled() && row()->isAddVisible())
        QMetaObject::invokeMethod(row(), "addTriggered");
}

QString AccessibleSceneItem::purpose() const
{
    return row()->getName();
}

void AccessibleSceneItem::press()
{
    QListWidgetItem *item = row()->getItem();
    if (item && item->listWidget())
        item->listWidget()->setCurrentItem(item);
}

VelmoSceneItem *AccessibleSceneItem::row() const
{
    return static_cast<VelmoSceneItem *>(widget());
}
