#include "simulation/Bake.h"

#include "simulation/Crowd.h"

#include <QThread>

#include <algorithm>

Bake::Bake(QObject *parent) : QObject(parent)
{ }

Bake::~Bake()
{
    m_cancelled = true;
    if (m_thread)
        m_thread->wait();
}

void Bake::start(const Scene &scene, const CrowdSettings &settings, int frames, double framesPerSecond)
{
    clear();
    m_framesPerSecond = std::max(1.0, framesPerSecond);
    const auto crowd = std::make_shared<Crowd>(scene, settings);
    m_people = crowd->people();
    m_frames.resize(std::max(0, frames));
    m_cancelled = false;
    // The list itself does not change meanwhile: the thread writes its elements, each before it counts.
    QList<QPointF> *firstFrame = m_frames.data();
    m_thread.reset(QThread::create([this, crowd, firstFrame, count = m_frames.size()] {
        for (int frame = 0; frame < count && !m_cancelled; ++frame) {
            if (frame > 0 && !crowd->step(1.0 / m_framesPerSecond, m_cancelled))
                return;
            firstFrame[frame] = crowd->positions();
            m_computed = frame + 1;
        }
    }));
    // The news may come when that thread has been stopped already, and another one runs.
    connect(m_thread.get(), &QThread::finished, this, [this, thread = m_thread.get()] {
        if (m_thread.get() == thread)
            finish();
    });
    m_thread->start();
}

void Bake::stop()
{
    m_cancelled = true;
    if (!m_thread)
        return;
    disconnect(m_thread.get(), nullptr, this, nullptr);
    finish();
}

void Bake::clear()
{
    stop();
    m_computed = 0;
    m_people.clear();
    m_frames.clear();
}

bool Bake::isRunning() const
{
    return m_thread != nullptr;
}

int Bake::frameCount() const
{
    return int(m_frames.size());
}

int Bake::computedFrames() const
{
    return m_computed;
}

double Bake::framesPerSecond() const
{
    return m_framesPerSecond;
}

const QList<SceneMover> &Bake::people() const
{
    return m_people;
}

QList<QPointF> Bake::positions(int frame) const
{
    return frame >= 0 && frame < m_computed ? m_frames[frame] : QList<QPointF>();
}

void Bake::finish()
{
    m_thread->wait();
    m_thread.release()->deleteLater();
    emit stopped();
}
