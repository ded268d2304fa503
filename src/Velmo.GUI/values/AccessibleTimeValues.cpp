#include "values/AccessibleTimeValues.h"

#include "foundation/AccessibleWidgets.h"
#include "values/OvixMovableLabel.h"
#include "values/oVIXFloatingProgressBar.h"
#include "values/oVIXProgressBar.h"

#include <QAccessibleWidget>
#include <QPointer>

#include <algorithm>

/// A value that counts from 0 in steps of 1.
class AccessibleCount : public QAccessibleWidget, public QAccessibleValueInterface
{
public:
    using QAccessibleWidget::QAccessibleWidget;

    void *interface_cast(QAccessible::InterfaceType type) override
    {
        if (type == QAccessible::ValueInterface)
            return static_cast<QAccessibleValueInterface *>(this);
        return QAccessibleWidget::interface_cast(type);
    }

    QString text(QAccessible::Text kind) const override
    {
        return kind == QAccessible::Value ? currentValue().toString() : QAccessibleWidget::text(kind);
    }

    QVariant minimumValue() const override { return 0; }
    QVariant minimumStepSize() const override { return 1; }
};

namespace {

class AccessibleMarker : public AccessibleCount
{
public:
    explicit AccessibleMarker(QWidget *widget) : AccessibleCount(widget, QAccessible::Slider) { }

    QVariant currentValue() const override { return marker()->getKeptValue(); }
    QVariant maximumValue() const override { return marker()->getMaximumValue(); }

    /// As if it were typed.
    void setCurrentValue(const QVariant &value) override
    {
        const QPointer<OvixMovableLabel> alive(marker());
        const double number = value.toDouble();
        if (!alive->isEnabled() || !alive->isEditable() || !(number >= 0.0 && number <= alive->getMaximumValue()))
            return;
        emit alive->editingStarted();
        if (!alive)
            return;
        alive->setCurrentValue(int(number));
        emit alive->editingFinished();
    }

private:
    OvixMovableLabel *marker() const { return static_cast<OvixMovableLabel *>(widget()); }
};

class AccessibleFloatingBar : public AccessibleCount
{
public:
    explicit AccessibleFloatingBar(QWidget *widget) : AccessibleCount(widget, QAccessible::ProgressBar) { }

    QVariant currentValue() const override { return static_cast<oVIXFloatingProgressBar *>(widget())->getPercent(); }
    QVariant maximumValue() const override { return 100; }
    void setCurrentValue(const QVariant &) override { }
};

} // namespace

/// Setting its value picks one, as a click does.
class AccessiblePickingBar : public AccessibleCount
{
public:
    explicit AccessiblePickingBar(QWidget *widget) : AccessibleCount(widget, QAccessible::ProgressBar) { }

    QAccessible::State state() const override
    {
        QAccessible::State state = AccessibleCount::state();
        state.readOnly = !bar()->isClickable();
        return state;
    }

    /// What is done; that is below the minimum before there is anything.
    QVariant currentValue() const override { return std::max(bar()->value(), bar()->minimum()); }
    QVariant minimumValue() const override { return bar()->minimum(); }
    QVariant maximumValue() const override { return bar()->maximum(); }
    void setCurrentValue(const QVariant &value) override
    {
        const double number = value.toDouble();
        if (bar()->isEnabled() && number >= bar()->minimum() && number <= bar()->maximum())
            bar()->pick(int(number));
    }

private:
    oVIXProgressBar *bar() const { return static_cast<oVIXProgressBar *>(widget()); }
};

void AccessibleTimeValues::install()
{
    static const bool filled = [] {
        AccessibleWidgets::add<AccessibleMarker>("OvixMovableLabel");
        AccessibleWidgets::add<AccessibleFloatingBar>("oVIXFloatingProgressBar");
        AccessibleWidgets::add<AccessiblePickingBar>("oVIXProgressBar");
        return true;
    }();
    Q_UNUSED(filled)
    AccessibleWidgets::install();
}

void AccessibleTimeValues::announce(QWidget *widget, int value)
{
    if (!QAccessible::isActive())
        return;
    QAccessibleValueChangeEvent event(widget, value);
    QAccessible::updateAccessibility(&event);
}
