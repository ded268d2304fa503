#include "values/AccessibleSlider.h"

#include "foundation/AccessibleWidgets.h"
#include "values/SaturatedInt.h"
#include "values/oVIXSliderBar.h"
#include "values/oVIXSliderWidget.h"

#include <QAccessibleWidget>
#include <QDoubleSpinBox>
#include <QSpinBox>

#include <algorithm>
#include <cmath>

namespace {

constexpr double barStep = 0.01;

class AccessibleSliderBar : public QAccessibleWidget, public QAccessibleValueInterface
{
public:
    explicit AccessibleSliderBar(QWidget *widget) : QAccessibleWidget(widget, QAccessible::Slider) { }

    void *interface_cast(QAccessible::InterfaceType type) override
    {
        return type == QAccessible::ValueInterface ? static_cast<QAccessibleValueInterface *>(this)
                                                   : QAccessibleWidget::interface_cast(type);
    }

    /// The text on it, when it has no other name.
    QString text(QAccessible::Text kind) const override
    {
        const QString text = QAccessibleWidget::text(kind);
        return kind == QAccessible::Name && text.isEmpty() ? bar()->text() : text;
    }

    /// What the bar shows, not what was picked last: the owner may have moved the marker since.
    QVariant currentValue() const override { return std::clamp(double(bar()->rightMarker()), 0.0, 1.0); }
    void setCurrentValue(const QVariant &value) override
    {
        if (value.canConvert<double>())
            bar()->pick(value.toDouble());
    }
    QVariant minimumValue() const override { return 0.0; }
    QVariant maximumValue() const override { return 1.0; }
    QVariant minimumStepSize() const override { return barStep; }

private:
    oVIXSliderBar *bar() const { return static_cast<oVIXSliderBar *>(widget()); }
};

} // namespace

/// Speaks for the editor that shows the value, or the upper end of a range.
class AccessibleSliderWidget : public QAccessibleWidget, public QAccessibleValueInterface
{
public:
    explicit AccessibleSliderWidget(QWidget *widget) : QAccessibleWidget(widget, QAccessible::Slider) { }

    void *interface_cast(QAccessible::InterfaceType type) override
    {
        return type == QAccessible::ValueInterface ? static_cast<QAccessibleValueInterface *>(this)
                                                   : QAccessibleWidget::interface_cast(type);
    }

    QString text(QAccessible::Text kind) const override
    {
        if (kind == QAccessible::Value)
            return slider()->valueEditor()->text();
        QString text = QAccessibleWidget::text(kind);
        if (kind != QAccessible::Name || !text.isEmpty())
            return text;
        return widget()->toolTip().isEmpty() ? slider()->getPrefix() : widget()->toolTip();
    }

    QVariant currentValue() const override { return slider()->valueEditor()->property("value"); }
    QVariant minimumValue() const override { return slider()->valueEditor()->property("minimum"); }
    QVariant maximumValue() const override { return slider()->valueEditor()->property("maximum"); }
    QVariant minimumStepSize() const override { return slider()->valueEditor()->property("singleStep"); }

    /// As if the user had typed it and finished.
    void setCurrentValue(const QVariant &value) override
    {
        if (!slider()->isEnabled() || !value.canConvert<double>() || std::isnan(value.toDouble()))
            return;
        const QPointer<oVIXSliderWidget> alive(slider());
        if (auto *box = qobject_cast<QSpinBox *>(alive->valueEditor()))
            box->setValue(saturatedInt(value.toDouble()));
        else if (auto *doubleBox = qobject_cast<QDoubleSpinBox *>(alive->valueEditor()))
            doubleBox->setValue(value.toDouble());
        if (alive)
            alive->fnValueFinished();
    }

private:
    oVIXSliderWidget *slider() const { return static_cast<oVIXSliderWidget *>(widget()); }
};

void AccessibleSlider::install()
{
    static const bool added = [] {
        AccessibleWidgets::add(
            "oVIXSliderBar", [](QWidget *widget) -> QAccessibleInterface * { return new AccessibleSliderBar(widget); });
        AccessibleWidgets::add("oVIXSliderWidget", [](QWidget *widget) -> QAccessibleInterface * {
            return new AccessibleSliderWidget(widget);
        });
        return true;
    }();
    Q_UNUSED(added)
    AccessibleWidgets::install();
}

void AccessibleSlider::announceValue(oVIXSliderWidget *slider)
{
    if (!QAccessible::isActive())
        return;
    QAccessibleValueChangeEvent event(slider, slider->value());
    QAccessible::updateAccessibility(&event);
}
