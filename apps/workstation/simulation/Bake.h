#pragma once

#include "scenes/Scene.h"
#include "simulation/CrowdSettings.h"

#include <QObject>

#include <atomic>
#include <memory>

class QThread;

/// Lets a crowd walk ahead of time, frame by frame in a thread of its own, and keeps where everybody was. Frames that
/// have been computed can be shown while others still are.
class Bake : public QObject
{
    Q_OBJECT

public:
    explicit Bake(QObject *parent = nullptr);
    ~Bake() override;

    /// Forgets all frames and begins with the first one. What runs is stopped before.
    void start(const Scene &scene, const CrowdSettings &settings, int frames, double framesPerSecond);
    /// Keeps the frames that there are. `stopped` follows when something ran.
    void stop();
    /// Stops, and forgets all frames.
    void clear();

    bool isRunning() const;
    int frameCount() const;
    int computedFrames() const;
    double framesPerSecond() const;
    /// People of the first frame; their order is that of all frames.
    const QList<SceneMover> &people() const;
    /// Where they were in a frame that has been computed; empty for others.
    QList<QPointF> positions(int frame) const;

signals:
    /// All frames have been computed, or no more will be.
    void stopped();

private:
    void finish();

    QList<SceneMover> m_people;
    QList<QList<QPointF>> m_frames; // the thread's from m_computed on
    std::atomic_int m_computed = 0;
    std::atomic_bool m_cancelled = false;
    double m_framesPerSecond = 25.0;
    std::unique_ptr<QThread> m_thread;
};
