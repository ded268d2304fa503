#include "browser/AccessibleBrowser.h"

#include "browser/CurtainArrow.h"
#include "browser/SceneToggle.h"
#include "browser/VelmoCurtainWidget.h"
#include "browser/VelmoProjectItem.h"
#include "browser/VelmoSceneItem.h"
#include "foundation/AccessiblePressable.h"
#include "foundation/AccessibleWidgets.h"

#include <QListWidget>

namespace {

template <class Row> class AccessibleRow : public AccessiblePressable
{
public:
    explicit AccessibleRow(QWidget *widget) : AccessiblePressable(widget, QAccessible::ListItem) { }

    QAccessible::State state() const override
    {
        QAccessible::State state = AccessiblePressable::state();
        state.selectable = row()->isEnabled();
        state.selected = row()->isSelected();
        return state;
    }

protected:
    /// Rows have accessible names.
    QString purpose() const override { return {}; }
    void press() override
    {
        QListWidgetItem *item = row()->getItem();
        if (item && item->listWidget())
            item->listWidget()->setCurrentItem(item);
    }
    Row *row() const { return static_cast<Row *>(widget()); }
};

class AccessibleSceneItem : public AccessibleRow<VelmoSceneItem>
{
public:
    using AccessibleRow::AccessibleRow;

    QAccessible::State state() const override
    {
        QAccessible::State state = AccessibleRow::state();
        state.checkable = row()->isAddVisible();
        state.checked = row()->isAddEnabled();
        return state;
    }

    QStringList actionNames() const override
    {
        QStringList names = AccessibleRow::actionNames();
        if (isToggleable())
            names << toggleAction();
        return names;
    }

    void doAction(const QString &action) override
    {
        if (action != toggleAction())
            AccessibleRow::doAction(action);
        else if (isToggleable())
            QMetaObject::invokeMethod(row(), "addTriggered");
    }

private:
    bool isToggleable() const { return row()->isEnabled() && row()->isAddVisible(); }
};

class AccessibleSceneToggle : public AccessiblePressable
{
public:
    explicit AccessibleSceneToggle(QWidget *widget) : AccessiblePressable(widget, QAccessible::CheckBox) { }

    QAccessible::State state() const override
    {
        QAccessible::State state = AccessiblePressable::state();
        state.checkable = true;
        state.checked = row()->isAddEnabled();
        return state;
    }

protected:
    /// Toggles have accessible names.
    QString purpose() const override { return {}; }
    void press() override { static_cast<SceneToggle *>(widget())->click(); }

private:
    /// The toggle stands in the row's background.
    const VelmoSceneItem *row() const
    {
        return static_cast<VelmoSceneItem *>(widget()->parentWidget()->parentWidget());
    }
};

class AccessibleCurtainArrow : public AccessiblePressable
{
public:
    explicit AccessibleCurtainArrow(QWidget *widget) : AccessiblePressable(widget, QAccessible::Button) { }

    QAccessible::State state() const override
    {
        QAccessible::State state = AccessiblePressable::state();
        state.expandable = true;
        state.expanded = curtain()->isExpanded();
        state.collapsed = !state.expanded;
        return state;
    }

protected:
    QString purpose() const override { return curtain()->getTitle(); }
    void press() override { static_cast<CurtainArrow *>(widget())->click(); }

private:
    /// The arrow stands in the curtain's header.
    VelmoCurtainWidget *curtain() const
    {
        return static_cast<VelmoCurtainWidget *>(widget()->parentWidget()->parentWidget());
    }
};

} // namespace

void AccessibleBrowser::install()
{
    static const bool added = [] {
        AccessibleWidgets::add<AccessibleRow<VelmoProjectItem>>("VelmoProjectItem");
        AccessibleWidgets::add<AccessibleSceneItem>("VelmoSceneItem");
        AccessibleWidgets::add<AccessibleSceneToggle>("SceneToggle");
        AccessibleWidgets::add<AccessibleCurtainArrow>("CurtainArrow");
        return true;
    }();
    Q_UNUSED(added)
    AccessibleWidgets::install();
}
