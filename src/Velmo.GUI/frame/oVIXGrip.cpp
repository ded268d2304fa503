#include "frame/oVIXGrip.h"

#include <QMouseEvent>

#include <algorithm>

using namespace Qt::StringLiterals;

oVIXGrip::oVIXGrip(QWidget *parent, GripPosition position, int inset, int thickness)
    : QLabel(parent), m_position(position), m_inset(inset), m_thickness(thickness)
{
    setText(QString());
    setStyleSheet(u"background-color:transparent;"_s);
    setAttribute(Qt::WA_DeleteOnClose);
    if (isVertical())
        setFixedWidth(std::max(thickness, 0));
    else if (position == Top || position == Bottom)
        setFixedHeight(std::max(thickness, 0));
    autoResize();
}

oVIXGrip::~oVIXGrip() = default;

void oVIXGrip::autoResize()
{
    if (const QWidget *parent = parentWidget()) {
        const int width = parent->width();
        const int height = parent->height();
        switch (m_position) {
        case Top:
            setGeometry(m_inset, 0, width - 2 * m_inset, m_thickness);
            break;
        case Bottom:
            setGeometry(m_inset, height - m_thickness, width - 2 * m_inset, m_thickness);
            break;
        case Left:
            setGeometry(0, 0, m_thickness, height - m_inset);
            break;
        case Right:
            setGeometry(width - m_thickness, 0, m_thickness, height - m_inset);
            break;
        }
    }
    raise();
}

void oVIXGrip::mousePressEvent(QMouseEvent *event)
{
    m_pressed = underMouse();
    if (m_pressed)
        m_lastGlobalPosition = event->globalPosition();
}

void oVIXGrip::mouseMoveEvent(QMouseEvent *event)
{
    if (!m_pressed)
        return;
    const QPointF moved = event->globalPosition() - m_lastGlobalPosition;
    m_lastGlobalPosition = event->globalPosition();
    const bool invert = m_position == Top || m_position == Left;
    const QPointF along = isVertical() ? QPointF(moved.x(), 0) : QPointF(0, moved.y());
    emit resizeByGrip(along.toPoint(), invert);
}

void oVIXGrip::enterEvent(QEnterEvent *event)
{
    setCursor(isVertical() ? Qt::SizeHorCursor : Qt::SizeVerCursor);
    QLabel::enterEvent(event);
}

void oVIXGrip::leaveEvent(QEvent *event)
{
    setCursor(Qt::ArrowCursor);
    QLabel::leaveEvent(event);
}

/// A strip along the left or right edge.
bool oVIXGrip::isVertical() const
{
    return m_position == Left || m_position == Right;
}
