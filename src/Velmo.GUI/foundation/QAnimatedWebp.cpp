#include "foundation/QAnimatedWebp.h"

#include "foundation/AnimationRules.h"

QAnimatedWebp::QAnimatedWebp(QObject *)
{
    m_frameTimer.setSingleShot(true);
    m_frameTimer.setTimerType(Qt::PreciseTimer);
    connect(&m_frameTimer, &QTimer::timeout, this, &QAnimatedWebp::frameTimerTriggered);
}

QAnimatedWebp::~QAnimatedWebp() = default;

void QAnimatedWebp::setFileName(const QString &fileName)
{
    stop();
    m_current = -1;
    m_framesRead = 0;
    m_frames.clear();
    m_reader.setFileName(fileName);
}

void QAnimatedWebp::setMinDelayMs(int milliseconds)
{
    m_minDelay = milliseconds;
}

void QAnimatedWebp::start()
{
    m_started = true;
    m_frameTimer.setInterval(0);
    m_frameTimer.start();
}

void QAnimatedWebp::stop()
{
    m_started = false;
    m_frameTimer.stop();
}

bool QAnimatedWebp::hasStarted() const
{
    return m_started;
}

bool QAnimatedWebp::isValid() const
{
    return !m_reader.fileName().isEmpty();
}

bool QAnimatedWebp::hasImage() const
{
    const CachedFrame *frame = currentFrame();
    return frame && !frame->image.isNull();
}

void QAnimatedWebp::getCurrentImage(QImage *image) const
{
    if (!image)
        return;
    const CachedFrame *frame = currentFrame();
    *image = frame ? frame->image : QImage();
}

void QAnimatedWebp::frameTimerTriggered()
{
    if (!m_started)
        return;
    // The reader complains aloud about a file without a name. It counts none or -1 in what it cannot read, and none
    // left in some still pictures once they are read.
    const int count = isValid() ? m_reader.imageCount() : 0;
    if (count <= 0)
        return;
    m_current = (m_current + 1) % count;
    decodeUpToCurrent();

    const int interval = m_frameTimer.interval();
    qint64 elapsed = 0;
    if (m_elapsed.isValid())
        elapsed = m_elapsed.restart();
    else
        m_elapsed.start();

    if (!hasImage())
        return;
    m_frameTimer.setInterval(AnimationRules::nextInterval(currentFrame()->delay, m_minDelay, elapsed, interval));
    m_frameTimer.start();
    emit frameChanged(m_current);
}

const QAnimatedWebp::CachedFrame *QAnimatedWebp::currentFrame() const
{
    const auto found = m_frames.find(m_current);
    return found == m_frames.end() ? nullptr : &found->second;
}

void QAnimatedWebp::decodeUpToCurrent()
{
    while (m_framesRead <= m_current && m_reader.canRead()) {
        CachedFrame &frame = m_frames[m_framesRead];
        frame.image = m_reader.read();
        frame.delay = m_reader.nextImageDelay();
        ++m_framesRead;
    }
}
