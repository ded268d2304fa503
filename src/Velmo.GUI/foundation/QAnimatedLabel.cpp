#include "foundation/QAnimatedLabel.h"

#include "foundation/AnimationRules.h"

#include <QTimerEvent>

#include <cmath>

namespace {

constexpr qint64 mostFrames = 65536;

/// A part of the sheet, null where there is nothing of it: the toolkit takes an empty part for the whole.
QPixmap cut(const QPixmap &sheet, const QRect &part)
{
    return !part.isEmpty() && sheet.rect().contains(part) ? sheet.copy(part) : QPixmap();
}

} // namespace

QAnimatedLabel::QAnimatedLabel(QWidget *parent, Qt::WindowFlags flags) : QClickableLabel(parent, flags)
{ }

QAnimatedLabel::QAnimatedLabel(const QString &text, QWidget *parent, Qt::WindowFlags flags)
    : QClickableLabel(text, parent, flags)
{ }

QAnimatedLabel::~QAnimatedLabel() = default;

void QAnimatedLabel::setStacksAndSlices(const QPixmap &sheet, int stacks, int slices, int count)
{
    if (stacks < 1 || slices < 1)
        return;
    const qint64 asked = count < 1 ? qint64(stacks) * slices : count;
    if (asked > mostFrames)
        return;
    count = int(asked);

    if (m_frames.size() < count)
        m_frames.resize(count);
    const QSize frame(sheet.width() / slices, sheet.height() / stacks);
    for (int i = 0; i < count; ++i) {
        // Wide enough for rows far below the sheet, which have nothing to show.
        const qint64 top = qint64(i / slices) * frame.height();
        m_frames[i] =
            top < sheet.height() ? cut(sheet, {QPoint(i % slices * frame.width(), int(top)), frame}) : QPixmap();
    }
    m_count = count;
    m_position = 0.0F;
    updatePixmap();
}

void QAnimatedLabel::setSpeed(float framesPerSecond)
{
    if (std::isfinite(framesPerSecond))
        m_speed = framesPerSecond;
}

void QAnimatedLabel::play(int interval)
{
    if (interval < 0)
        return;
    m_interval = interval;
    m_elapsed.start();
    if (isVisible())
        startTicking();
    updatePixmap();
}

void QAnimatedLabel::pause()
{
    stopPlaying();
}

void QAnimatedLabel::stop()
{
    stopPlaying();
    m_position = 0.0F;
    updatePixmap();
}

bool QAnimatedLabel::isPlaying() const
{
    return m_interval >= 0;
}

void QAnimatedLabel::setSingle()
{
    stopPlaying();
    m_count = 0;
    m_position = 0.0F;
}

void QAnimatedLabel::timerEvent(QTimerEvent *event)
{
    if (event->timerId() != m_timerId) {
        QClickableLabel::timerEvent(event);
        return;
    }
    if (!isVisible() || m_count < 2)
        return;
    const float before = m_position;
    m_position = AnimationRules::advanced(m_position, m_elapsed.restart(), m_speed, m_count);
    if (AnimationRules::isOtherFrame(before, m_position))
        updatePixmap();
}

void QAnimatedLabel::showEvent(QShowEvent *event)
{
    QClickableLabel::showEvent(event);
    if (isPlaying())
        startTicking();
}

void QAnimatedLabel::hideEvent(QHideEvent *event)
{
    stopTicking();
    QClickableLabel::hideEvent(event);
}

void QAnimatedLabel::startTicking()
{
    stopTicking();
    m_timerId = startTimer(m_interval, Qt::CoarseTimer);
}

void QAnimatedLabel::stopTicking()
{
    if (m_timerId != -1)
        killTimer(m_timerId);
    m_timerId = -1;
}

void QAnimatedLabel::stopPlaying()
{
    stopTicking();
    m_interval = -1;
}

/// Telling of it is the last thing done: the label may be deleted by then.
void QAnimatedLabel::updatePixmap()
{
    if (m_frames.size() < 2)
        return;
    setPixmap(m_frames[AnimationRules::frameAt(m_position, m_frames.size())]);
    emit frameUpdated();
}
