#include "foundation/FocusRing.h"

#include "foundation/KeyboardPress.h"

#include <QEvent>
#include <QTabBar>

FocusRing::FocusRing(QWidget *widget, qreal radius) : QObject(widget), m_radius(radius)
{
    widget->installEventFilter(this);
}

FocusRing::~FocusRing() = default;

bool FocusRing::eventFilter(QObject *watched, QEvent *event)
{
    if (event->type() != QEvent::Paint)
        return false;
    auto *widget = static_cast<QWidget *>(watched);
    watched->event(event); // the ring comes on top
    const auto *tabs = qobject_cast<QTabBar *>(widget);
    paintFocusRing(widget, widget, tabs ? tabs->tabRect(tabs->currentIndex()) : widget->rect(), m_radius);
    return true;
}
