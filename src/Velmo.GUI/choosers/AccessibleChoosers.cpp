#include "choosers/AccessibleChoosers.h"

#include "choosers/oVIXButton.h"
#include "choosers/oVIXCombo.h"
#include "foundation/AccessiblePressable.h"
#include "foundation/AccessibleWidgets.h"

#include <QMenu>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

class AccessibleButton : public AccessibleCheckable<oVIXButton>
{
public:
    using AccessibleCheckable::AccessibleCheckable;

protected:
    QString purpose() const override { return button()->text(); }
};

class AccessibleCombo : public AccessiblePressable
{
public:
    explicit AccessibleCombo(QWidget *widget) : AccessiblePressable(widget, QAccessible::ComboBox) { }

    QAccessible::State state() const override
    {
        QAccessible::State state = AccessiblePressable::state();
        state.hasPopup = true;
        state.expandable = true;
        const QList<QMenu *> menus = widget()->findChildren<QMenu *>(QString(), Qt::FindDirectChildrenOnly);
        state.expanded = std::any_of(menus.begin(), menus.end(), [](const QMenu *menu) { return menu->isVisible(); });
        return state;
    }

    /// It is one control: its parts do nothing that it does not.
    int childCount() const override { return 0; }
    QAccessibleInterface *child(int) const override { return nullptr; }
    QAccessibleInterface *childAt(int, int) const override { return nullptr; }
    int indexOfChild(const QAccessibleInterface *) const override { return -1; }

    QString text(QAccessible::Text kind) const override
    {
        return kind == QAccessible::Value ? combo()->getCurrentComboText() : AccessiblePressable::text(kind);
    }

protected:
    QString purpose() const override { return widget()->findChild<QLabel *>(u"textLabel"_s)->text(); }
    /// Later, since the menu keeps whoever opens it waiting.
    void press() override { QMetaObject::invokeMethod(widget(), "buttonClicked", Qt::QueuedConnection); }

private:
    oVIXCombo *combo() const { return static_cast<oVIXCombo *>(widget()); }
};

} // namespace

void AccessibleChoosers::install()
{
    static const bool added = [] {
        AccessibleWidgets::add<AccessibleButton>("oVIXButton");
        AccessibleWidgets::add<AccessibleCombo>("oVIXCombo");
        return true;
    }();
    Q_UNUSED(added)
    AccessibleWidgets::install();
}
