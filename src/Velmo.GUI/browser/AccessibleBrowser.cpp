#include "browser/AccessibleBrowser.h"

#include "browser/CurtainArrow.h"
#include "browser/SceneToggle.h"
#include "browser/VelmoCurtainWidget.h"
#include "browser/VelmoProjectItem.h"
#include "browser/VelmoSceneItem.h"
#include "foundation/AccessibleRows.h"
#include "foundation/AccessibleWidgets.h"

#include <QListWidget>

namespace {

template <class Row> class AccessibleBrowserRow : public AccessibleRow
{
public:
    using AccessibleRow::AccessibleRow;

    QAccessible::State state() const override
    {
        QAccessible::State state = AccessibleRow::state();
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

class AccessibleSceneItem : public AccessibleBrowserRow<VelmoSceneItem>
{
public:
    using AccessibleBrowserRow::AccessibleBrowserRow;

    QAccessible::State state() const override
    {
        QAccessible::State state = AccessibleBrowserRow::state();
        state.checkable = row()->isAddVisible();
        state.checked = row()->isAddEnabled();
        return state;
    }

    QStringList actionNames() const override
    {
        QStringList names = AccessibleBrowserRow::actionNames();
        if (isToggleable())
            names << toggleAction();
        return names;
    }

    void doAction(const QString &action) override
    {
        if (action != toggleAction())
            AccessibleBrowserRow::doAction(action);
        else if (isToggleable())
            QMetaObject::invokeMethod(row(), "addTriggered", Qt::QueuedConnection);
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
        AccessibleWidgets::add<AccessibleRowList>("BrowserListWidget");
        AccessibleWidgets::add<AccessibleBrowserRow<VelmoProjectItem>>("VelmoProjectItem");
        AccessibleWidgets::add<AccessibleSceneItem>("VelmoSceneItem");
        AccessibleWidgets::add<AccessibleSceneToggle>("SceneToggle");
        AccessibleWidgets::add<AccessibleCurtainArrow>("CurtainArrow");
        return true;
    }();
    Q_UNUSED(added)
    AccessibleWidgets::install();
}
