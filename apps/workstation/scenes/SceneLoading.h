#pragma once

#include "scenes/Scene.h"

#include <QObject>

#include <atomic>
#include <memory>

class QThread;
class VelmoPercentListener;
class VelmoProgressListener;

/// Loads scenes in a thread of its own and tells what it does to two listeners, from that thread. They have to live
/// longer than this object, whose destructor ends the thread and waits for it.
class SceneLoading : public QObject
{
    Q_OBJECT

public:
    SceneLoading(VelmoProgressListener *progress, VelmoPercentListener *percent, QObject *parent = nullptr);
    ~SceneLoading() override;

    /// One of the signals follows, from the event loop. Nothing while another scene is being loaded.
    void load(const QString &path);
    /// `cancelled` follows.
    void cancel();
    bool isLoading() const;

signals:
    void loaded(const Scene &scene);
    /// @p problem is in words for the user.
    void failed(const QString &problem);
    /// @p note says so in words for the user.
    void cancelled(const QString &note);

private:
    struct Outcome
    {
        Scene scene;
        QString problem;
        bool isGood = false;
    };

    void finish();

    VelmoProgressListener *m_progress;
    VelmoPercentListener *m_percent;
    std::unique_ptr<QThread> m_thread;
    Outcome m_outcome; // the thread's while it runs
    std::atomic_bool m_cancelled = false;
};
