#pragma once

#include "frame/oVIXWindowWait.h"

#include <atomic>

class StartDelay;

/// The main window's wait overlay. It shows at the first progress report on the GUI thread, with a delayed start at the
/// first one after a second, so that short operations never show it.
class VELMO_GUI_EXPORT oVIXWindowWaitGlobal : public oVIXWindowWait
{
    Q_OBJECT

public:
    /// The delay of a delayed start, in milliseconds.
    static constexpr int DelayStartMsecs = 1000;

    /// An overlay over @p parent, without a wait.
    explicit oVIXWindowWaitGlobal(QWidget *parent);
    ~oVIXWindowWaitGlobal() override;

    /// Begins a wait without showing it yet. Nothing but the tick while one runs.
    void startWait(bool delayed);
    /// Ends the wait and its delay, and hides the overlay.
    void endWait() override;
    /// Between `startWait` and `endWait`, whether the overlay shows or not. From any thread.
    bool isRunning() const;

    /// Number of this wait's delay thread, 0 without one. Numbers count up and are not used twice.
    unsigned long getWinThreadID();
    /// Ends the delay at once. From any thread.
    void timeElapsedEvent();
    /// @p callback is called with @p context at the start of every progress report made on the GUI thread. Null for
    /// none.
    void applicationCrashed(void *context, void (*callback)(void *));

    /// Shows the overlay when a wait runs and its start delay is over; else, and from other threads, only keeps a text
    /// that is not empty.
    void progressEvent(QString text) override;
    using oVIXWindowWait::progressEvent;

signals:
    /// The start delay is over; emitted once for every end of a delay, by the first report on the GUI thread that finds
    /// it over. A report from another thread in between takes the announcement away.
    void delayFinished();

private:
    using oVIXWindowWait::startWait;

    std::unique_ptr<StartDelay> m_delay;
    std::atomic<bool> m_running = false;
    std::atomic<int> m_waits = 0; // begun so far
    void *m_callbackContext = nullptr;
    void (*m_callback)(void *) = nullptr;
};
