#include "frame/StartDelay.h"

#include <condition_variable>
#include <mutex>
#include <system_error>

// The two locks are never held together.
struct StartDelay::Shared
{
    std::mutex stateMutex;
    bool elapsed = false;
    bool pending = false;

    std::mutex threadMutex;
    std::condition_variable threadChanged;
    unsigned long threadNumber = 0;

    void elapse()
    {
        const std::lock_guard lock(stateMutex);
        elapsed = true;
        pending = true;
    }
};

StartDelay::StartDelay() : m_shared(std::make_shared<Shared>())
{ }

StartDelay::~StartDelay()
{
    cancel();
}

void StartDelay::start(std::chrono::nanoseconds delay)
{
    cancel();
    {
        const std::lock_guard lock(m_shared->stateMutex);
        m_shared->elapsed = false;
        m_shared->pending = false;
    }
    // Numbers of our own, since the system uses those of ended threads again.
    const unsigned long number = ++m_lastNumber;
    {
        const std::lock_guard lock(m_shared->threadMutex);
        m_shared->threadNumber = number;
    }
    const auto deadline = std::chrono::steady_clock::now() + delay;
    try {
        m_thread = std::thread([shared = m_shared, number, deadline] { run(shared, number, deadline); });
    } catch (const std::system_error &) { // no thread to be had: rather no delay than no overlay
        startElapsed();
    }
}

void StartDelay::startElapsed()
{
    cancel();
    const std::lock_guard lock(m_shared->stateMutex);
    m_shared->elapsed = true;
    m_shared->pending = false;
}

void StartDelay::cancel()
{
    {
        const std::lock_guard lock(m_shared->threadMutex);
        m_shared->threadNumber = 0;
    }
    m_shared->threadChanged.notify_all();
    if (m_thread.joinable())
        m_thread.join();
}

void StartDelay::elapse()
{
    m_shared->elapse();
}

unsigned long StartDelay::currentThread() const
{
    const std::lock_guard lock(m_shared->threadMutex);
    return m_shared->threadNumber;
}

StartDelay::Flags StartDelay::takePending()
{
    const std::lock_guard lock(m_shared->stateMutex);
    const Flags flags{m_shared->elapsed, m_shared->pending};
    m_shared->pending = false;
    return flags;
}

void StartDelay::run(const std::shared_ptr<Shared> &shared, unsigned long number,
                     std::chrono::steady_clock::time_point deadline)
{
    {
        std::unique_lock lock(shared->threadMutex);
        const bool replaced = shared->threadChanged.wait_until(
            lock, deadline, [&shared, number] { return shared->threadNumber != number; });
        if (replaced)
            return;
    }
    shared->elapse();
}
