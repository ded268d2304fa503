#include "frame/oVIXWindowBlock.h"

#include <QEvent>
#include <QPainter>

const QColor oVIXWindowBlock::BackgroundColor(0, 0, 0, 190);

oVIXWindowBlock::oVIXWindowBlock(QWidget *parent) : QWidget(parent)
{
    move(0, 0);
    follow(parent);
}

oVIXWindowBlock::~oVIXWindowBlock() = default;

void oVIXWindowBlock::setBackgroundPixmap(QPixmap *pixmap)
{
    m_backgroundPixmap = pixmap ? *pixmap : QPixmap();
    update();
}

void oVIXWindowBlock::clearBackgroundPixmap()
{
    if (m_backgroundPixmap.isNull())
        return;
    m_backgroundPixmap.fill(BackgroundColor);
    update();
}

void oVIXWindowBlock::drawPixmapInRect(const QRect &rect, const QPixmap &pixmap)
{
    if (m_backgroundPixmap.isNull() || pixmap.isNull())
        return;
    QPainter painter(&m_backgroundPixmap);
    painter.drawPixmap(rect, pixmap);
    painter.end();
    update();
}

void oVIXWindowBlock::setCustomWidget(QWidget *widget)
{
    m_customWidget = widget;
    if (!widget)
        return;
    widget->setParent(this);
    widget->raise();
    widget->resize(size());
    widget->show();
}

void oVIXWindowBlock::setCentralWidget(QWidget *widget)
{
    m_pixmapTarget = widget;
}

bool oVIXWindowBlock::eventFilter(QObject *watched, QEvent *event)
{
    if (watched == parent()) {
        if (event->type() == QEvent::Resize)
            resizeToParent();
        else if (event->type() == QEvent::ZOrderChange)
            raise();
    }
    return QWidget::eventFilter(watched, event);
}

bool oVIXWindowBlock::event(QEvent *event)
{
    if (event->type() == QEvent::ParentAboutToChange) {
        if (parent())
            parent()->removeEventFilter(this);
    } else if (event->type() == QEvent::ParentChange) {
        follow(parentWidget());
    }
    return QWidget::event(event);
}

void oVIXWindowBlock::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    paintBackground(painter);
}

void oVIXWindowBlock::showEvent(QShowEvent *event)
{
    resizeToParent();
    raise(); // above what has joined the window since
    QWidget::showEvent(event);
}

void oVIXWindowBlock::paintBackground(QPainter &painter) const
{
    if (!m_backgroundPixmap.isNull() && m_pixmapTarget && m_pixmapTarget->parentWidget())
        painter.drawPixmap(m_pixmapTarget->geometry(), m_backgroundPixmap);
    painter.fillRect(rect(), BackgroundColor);
}

void oVIXWindowBlock::follow(QWidget *parent)
{
    if (!parent)
        return;
    parent->installEventFilter(this);
    raise();
}

void oVIXWindowBlock::resizeToParent()
{
    if (parentWidget())
        resize(parentWidget()->size());
    if (m_customWidget)
        m_customWidget->resize(size());
}
