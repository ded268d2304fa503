#include "foundation/AccessiblePressable.h"

#include <QWidget>

AccessiblePressable::AccessiblePressable(QWidget *widget, QAccessible::Role role) : QAccessibleWidget(widget, role)
{ }

QString AccessiblePressable::text(QAccessible::Text kind) const
{
    if (kind != QAccessible::Name)
        return QAccessibleWidget::text(kind);
    if (!widget()->accessibleName().isEmpty())
        return widget()->accessibleName();
    if (!widget()->toolTip().isEmpty())
        return widget()->toolTip();
    return purpose();
}

QStringList AccessiblePressable::actionNames() const
{
    QStringList names;
    if (isPressable())
        names << pressAction();
    return names + QAccessibleWidget::actionNames();
}

void AccessiblePressable::doAction(const QString &action)
{
    if (action != pressAction())
        QAccessibleWidget::doAction(action);
    else if (isPressable())
        QMetaObject::invokeMethod(
            widget(), [pressed = widget()] { pressNow(pressed); }, Qt::QueuedConnection);
}

void AccessiblePressable::pressNow(QWidget *widget)
{
    auto *pressable = dynamic_cast<AccessiblePressable *>(QAccessible::queryAccessibleInterface(widget));
    if (pressable && pressable->isPressable())
        pressable->press();
}

bool AccessiblePressable::isPressable() const
{
    return widget()->isEnabled();
}
