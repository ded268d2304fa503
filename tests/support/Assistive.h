#pragma once

#include <QAccessible>
#include <QCoreApplication>
#include <QEvent>

/// What assistive tools do with a widget.
namespace Assistive {

inline QAccessibleInterface *of(QObject *widget)
{
    return QAccessible::queryAccessibleInterface(widget);
}

/// Does an action of a widget, a press if none is named, and waits until it is done. False when it is not offered.
inline bool act(QObject *widget, const QString &action = QAccessibleActionInterface::pressAction())
{
    QAccessibleActionInterface *actions = of(widget)->actionInterface();
    const bool offered = actions && actions->actionNames().contains(action);
    if (actions)
        actions->doAction(action);
    QCoreApplication::sendPostedEvents(widget, QEvent::MetaCall); // a press does not keep who asks for it waiting
    return offered;
}

} // namespace Assistive
