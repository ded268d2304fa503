#include "frame/oVIXTitleBarFilter.h"

#include <QMouseEvent>

oVIXTitleBarFilter::oVIXTitleBarFilter(QWidget *titleWidget, QWidget *window)
    : QObject(window), m_titleWidget(titleWidget), m_window(window)
{ }

oVIXTitleBarFilter::~oVIXTitleBarFilter() = default;

bool oVIXTitleBarFilter::canClick(const QPoint &pos)
{
    return m_titleWidget && !m_titleWidget->childAt(pos);
}

void oVIXTitleBarFilter::maximize()
{ }

bool oVIXTitleBarFilter::eventFilter(QObject *watched, QEvent *event)
{
    if (watched != m_titleWidget || !m_window)
        return QObject::eventFilter(watched, event);

    const auto mouse = [event] { return static_cast<const QMouseEvent *>(event); };
    switch (event->type()) {
    case QEvent::MouseButtonPress:
        if (mouse()->button() == Qt::LeftButton)
            press(*mouse());
        return false;
    case QEvent::MouseMove:
        if (mouse()->buttons() & Qt::LeftButton)
            drag(*mouse());
        return false;
    case QEvent::MouseButtonRelease:
        if (mouse()->button() == Qt::LeftButton)
            m_dragOffset = QPoint();
        return false;
    case QEvent::MouseButtonDblClick:
        if (mouse()->button() == Qt::LeftButton && canClick(mouse()->position().toPoint()))
            maximize();
        return false;
    default:
        return QObject::eventFilter(watched, event);
    }
}

QWidget *oVIXTitleBarFilter::titleWidget() const
{
    return m_titleWidget;
}

QWidget *oVIXTitleBarFilter::window() const
{
    return m_window;
}

void oVIXTitleBarFilter::press(const QMouseEvent &event)
{
    m_dragOffset = QPoint();
    if (canClick(event.position().toPoint()))
        m_dragOffset = event.globalPosition().toPoint() - m_window->frameGeometry().topLeft();
}

void oVIXTitleBarFilter::drag(const QMouseEvent &event)
{
    if (!m_dragOffset.isNull() && !m_window->isMaximized())
        m_window->move(event.globalPosition().toPoint() - m_dragOffset);
}
