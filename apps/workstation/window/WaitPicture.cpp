#include "window/WaitPicture.h"

#include <QEvent>
#include <QPainter>

namespace {

constexpr int gapToMiddle = 64;

} // namespace

WaitPicture::WaitPicture(QWidget *overlay) : QWidget(overlay)
{
    setAttribute(Qt::WA_TransparentForMouseEvents);
    resize(MovingPicture::Size);
    moveAboveMark();
    overlay->installEventFilter(this);
}

bool WaitPicture::eventFilter(QObject *watched, QEvent *event)
{
    if (watched == parent() && event->type() == QEvent::Resize)
        moveAboveMark();
    return QWidget::eventFilter(watched, event);
}

void WaitPicture::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    m_picture.paint(&painter, rect(), this);
}

void WaitPicture::moveAboveMark()
{
    const QPoint middle = parentWidget()->rect().center();
    move(middle.x() - width() / 2, middle.y() - gapToMiddle - height());
}
