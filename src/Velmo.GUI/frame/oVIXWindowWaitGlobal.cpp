#include "frame/oVIXWindowWaitGlobal.h"

#include "frame/StartDelay.h"

oVIXWindowWaitGlobal::oVIXWindowWaitGlobal(QWidget *parent) : oVIXWindowWait(parent), m_delay(new StartDelay)
{ }

oVIXWindowWaitGlobal::~oVIXWindowWaitGlobal()
{
    m_delay->cancel();
    m_running = false;
}

void oVIXWindowWaitGlobal::startWait(bool delayed)
{
    startTicks();
    if (m_running.exchange(true))
        return;
    ++m_waits;
    rewindMovie();
    if (delayed)
        m_delay->start(std::chrono::milliseconds(DelayStartMsecs));
    else
        m_delay->startElapsed();
}

void oVIXWindowWaitGlobal::endWait()
{
    m_delay->cancel();
    m_running = false;
    oVIXWindowWait::endWait();
}

bool oVIXWindowWaitGlobal::isRunning() const
{
    return m_running;
}

unsigned long oVIXWindowWaitGlobal::getWinThreadID()
{
    return m_delay->currentThread();
}

void oVIXWindowWaitGlobal::timeElapsedEvent()
{
    m_delay->elapse();
}

void oVIXWindowWaitGlobal::applicationCrashed(void *context, void (*callback)(void *))
{
    m_callbackContext = context;
    m_callback = callback;
}

void oVIXWindowWaitGlobal::progressEvent(QString text)
{
    const bool onGui = isOnGuiThread();
    const QPointer<oVIXWindowWaitGlobal> alive(onGui ? this : nullptr);
    if (onGui && m_callback)
        m_callback(m_callbackContext);
    if (onGui && !alive)
        return;

    const StartDelay::Flags flags = m_delay->takePending();
    const bool showNow = onGui && flags.elapsed && m_running;
    const int wait = m_waits;
    if (onGui && flags.pending && m_running) {
        emit delayFinished();
        if (!alive)
            return;
    }
    if (showNow && m_running && wait == m_waits) // the announcement may have ended the wait, and begun another
        oVIXWindowWait::progressEvent(text);
    else if (!text.isEmpty())
        setText(text);
}
