#include "values/oVIXFloatingProgressBar.h"

#include "values/AccessibleTimeValues.h"
#include "values/ProgressGeometry.h"

#include <QEvent>
#include <QPropertyAnimation>

using namespace Qt::StringLiterals;

namespace {

constexpr int stripHeight = 4;
constexpr int growMsecs = 500;

} // namespace

oVIXFloatingProgressBar::oVIXFloatingProgressBar(QWidget *parent) : QLabel(parent)
{
    AccessibleTimeValues::install();
    setStyleSheet(u"oVIXFloatingProgressBar {\tbackground:rgb(249, 199, 26);}"_s);
    resize(0, stripHeight);
    follow(parent);
}

oVIXFloatingProgressBar::~oVIXFloatingProgressBar() = default;

void oVIXFloatingProgressBar::setPercent(int percent)
{
    stopTween();
    if (m_percent >= percent) {
        resize(sizeFromPercent(percent));
    } else {
        m_tween = new QPropertyAnimation(this, "size", this);
        m_tween->setDuration(growMsecs);
        m_tween->setEasingCurve(QEasingCurve::OutCubic);
        m_tween->setStartValue(size());
        m_tween->setEndValue(sizeFromPercent(percent));
        m_tween->start(QAbstractAnimation::KeepWhenStopped);
    }
    const bool changed = m_percent != percent;
    m_percent = percent;
    if (changed)
        AccessibleTimeValues::announce(this, percent);
}

int oVIXFloatingProgressBar::getPercent() const
{
    return m_percent;
}

QSize oVIXFloatingProgressBar::sizeFromPercent(int percent)
{
    return {floatingBarWidth(parentWidget() ? parentWidget()->width() : 0, percent), height()};
}

void oVIXFloatingProgressBar::moveToBottom()
{
    if (parentWidget())
        move(0, parentWidget()->height() - height());
}

void oVIXFloatingProgressBar::stopTween()
{
    if (!m_tween)
        return;
    m_tween->stop();
    m_tween->deleteLater();
    m_tween = nullptr;
}

bool oVIXFloatingProgressBar::event(QEvent *event)
{
    if (event->type() == QEvent::ParentAboutToChange) {
        if (parent())
            parent()->removeEventFilter(this);
    } else if (event->type() == QEvent::ParentChange) {
        follow(parentWidget());
    }
    return QLabel::event(event);
}

bool oVIXFloatingProgressBar::eventFilter(QObject *watched, QEvent *event)
{
    if (watched == parent() && event->type() == QEvent::Resize) {
        stopTween();
        resize(sizeFromPercent(m_percent));
        moveToBottom();
    }
    return QLabel::eventFilter(watched, event);
}

void oVIXFloatingProgressBar::follow(QWidget *parent)
{
    if (!parent)
        return;
    parent->installEventFilter(this);
    raise();
}
