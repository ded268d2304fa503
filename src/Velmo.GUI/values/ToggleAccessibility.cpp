#include "values/ToggleAccessibility.h"

#include "foundation/AccessiblePressable.h"
#include "foundation/AccessibleWidgets.h"

namespace {

class AccessibleToggle : public QAccessibleWidget
{
public:
    explicit AccessibleToggle(QWidget *widget) : QAccessibleWidget(widget, QAccessible::Grouping) { }

    /// The highlight is no child that could be used.
    int childCount() const override { return int(buttons().size()); }
    QAccessibleInterface *child(int index) const override
    {
        return QAccessible::queryAccessibleInterface(buttons().value(index));
    }
    int indexOfChild(const QAccessibleInterface *child) const override
    {
        return child ? int(buttons().indexOf(qobject_cast<ToggleButton *>(child->object()))) : -1;
    }

private:
    QList<ToggleButton *> buttons() const { return widget()->findChildren<ToggleButton *>(Qt::FindDirectChildrenOnly); }
};

class AccessibleToggleButton : public AccessiblePressable
{
public:
    explicit AccessibleToggleButton(QWidget *widget) : AccessiblePressable(widget, QAccessible::RadioButton) { }

    QAccessible::State state() const override
    {
        QAccessible::State state = AccessiblePressable::state();
        state.checkable = true;
        state.checked = button()->isChecked();
        return state;
    }

protected:
    /// Every button has a name.
    QString purpose() const override { return {}; }
    void press() override { button()->click(); }

private:
    OvixSvgButton *button() const { return static_cast<OvixSvgButton *>(widget()); }
};

} // namespace

void installToggleAccessibility()
{
    static const bool filled = [] {
        AccessibleWidgets::add<AccessibleToggle>("oVIXToggle");
        AccessibleWidgets::add<AccessibleToggleButton>("ToggleButton");
        return true;
    }();
    Q_UNUSED(filled)
    AccessibleWidgets::install();
}
