#include "gallery/SampleJob.h"

#include "oVIXWindowWait.h"

#include <chrono>

using namespace std::chrono_literals;

namespace {

QString phase(int percent)
{
    if (percent < 30)
        return SampleJob::tr("Reading the scene");
    return percent < 70 ? SampleJob::tr("Finding everybody's way") : SampleJob::tr("Baking the motion");
}

} // namespace

SampleJob::SampleJob(oVIXWindowWait *wait, QObject *parent) : QObject(parent), m_wait(wait)
{
    m_timer.setInterval(40ms);
    connect(&m_timer, &QTimer::timeout, this, &SampleJob::step);
}

void SampleJob::start()
{
    m_percent = 0;
    m_timer.start();
}

void SampleJob::stop()
{
    m_timer.stop();
}

void SampleJob::step()
{
    if (m_percent == 100 || !m_wait) {
        stop();
        emit finished();
        return;
    }
    ++m_percent;
    m_wait->percentEvent(m_percent);
    m_wait->progressEvent(phase(m_percent)); // processes events: whatever is here may be gone afterwards
}
