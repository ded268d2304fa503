#pragma once

#include <chrono>
#include <memory>
#include <thread>

/// The delay of a wait's start: a thread that sets two flags after a time unless it is cancelled first.
///
/// Flags and locks live in a block that the thread shares, so that it never touches what may be gone; the thread is
/// woken and joined by `cancel`, by the next `start` and by the destructor. The thread counts as the current one only
/// while its number is the one stored here. `elapse` and `takePending` may be called from any thread, `start` and
/// `cancel` from the owner's.
class StartDelay
{
public:
    StartDelay();
    ~StartDelay();
    StartDelay(const StartDelay &) = delete;
    StartDelay &operator=(const StartDelay &) = delete;

    /// Clears the flags and lets them be set after @p delay. The same as `startElapsed` when no thread can be started.
    void start(std::chrono::nanoseconds delay);
    /// Sets the elapsed flag at once, without a pending one.
    void startElapsed();
    /// Keeps a delay that still runs from setting the flags.
    void cancel();

    /// What the thread does at its end.
    void elapse();

    /// Number of the delay thread that runs, 0 when none counts any more.
    unsigned long currentThread() const;

    struct Flags
    {
        bool elapsed;
        bool pending;
    };
    /// The flags; the pending one is cleared.
    Flags takePending();

private:
    struct Shared;

    static void run(const std::shared_ptr<Shared> &shared, unsigned long number,
                    std::chrono::steady_clock::time_point deadline);

    std::shared_ptr<Shared> m_shared;
    std::thread m_thread;
    unsigned long m_lastNumber = 0;
};
