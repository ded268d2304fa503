#include "choosers/AccessibleChoosers.h"

#include "choosers/oVIXButton.h"
#include "choosers/oVIXCombo.h"
#include "foundation/AccessiblePressable.h"
#include "foundation/AccessibleWidgets.h"

#include <QMenu>

using namespace Qt::StringLiterals;

namespace {

class AccessibleButton : public AccessibleCheckable<oVIXButton>
{
public:
    using AccessibleCheckable::AccessibleCheckable;

protected:
    QString purpose() const override { return button()->text(); }
};

} // namespace

/// Its text is the choice, to be read only: a choice is made in the menu.
class AccessibleCombo : public AccessiblePressable, public QAccessibleTextInterface
{
public:
    explicit AccessibleCombo(QWidget *widget) : AccessiblePressable(widget, QAccessible::ComboBox) { }

    void *interface_cast(QAccessible::InterfaceType type) override
    {
        return type == QAccessible::TextInterface ? static_cast<QAccessibleTextInterface *>(this)
                                                  : AccessiblePressable::interface_cast(type);
    }

    QAccessible::State state() const override
    {
        QAccessible::State state = AccessiblePressable::state();
        state.hasPopup = true;
        state.expandable = true;
        state.expanded = menu() != nullptr;
        state.collapsed = !state.expanded;
        state.readOnly = true;
        return state;
    }

    /// Its parts do nothing that it does not; the open menu is its only child.
    int childCount() const override { return menu() ? 1 : 0; }
    QAccessibleInterface *child(int index) const override
    {
        return index == 0 && menu() ? QAccessible::queryAccessibleInterface(menu()) : nullptr;
    }
    QAccessibleInterface *childAt(int, int) const override { return nullptr; }
    int indexOfChild(const QAccessibleInterface *child) const override
    {
        return menu() && child && child->object() == menu() ? 0 : -1;
    }

    QString text(int start, int end) const override { return combo()->getCurrentComboText().mid(start, end - start); }
    int characterCount() const override { return int(combo()->getCurrentComboText().size()); }
    QRect characterRect(int) const override { return rect(); }
    int offsetAtPoint(const QPoint &) const override { return -1; }
    QString attributes(int, int *start, int *end) const override
    {
        *start = 0;
        *end = characterCount();
        return {};
    }
    int cursorPosition() const override { return 0; }
    void setCursorPosition(int) override { }
    int selectionCount() const override { return 0; }
    void selection(int, int *start, int *end) const override { *start = *end = 0; }
    void addSelection(int, int) override { }
    void removeSelection(int) override { }
    void setSelection(int, int, int) override { }
    void scrollToSubstring(int, int) override { }

    QString text(QAccessible::Text kind) const override
    {
        return kind == QAccessible::Value ? combo()->getCurrentComboText() : AccessiblePressable::text(kind);
    }

protected:
    QString purpose() const override { return widget()->findChild<QLabel *>(u"textLabel"_s)->text(); }
    void press() override { combo()->buttonClicked(); }

private:
    oVIXCombo *combo() const { return static_cast<oVIXCombo *>(widget()); }
    QMenu *menu() const { return combo()->m_menu; }
};

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
