#pragma once

#include <QObject>
#include <QPointer>
#include <QTimer>

class oVIXWindowWait;

/// A long operation that only takes its time, some four seconds, and reports text and percent to a wait overlay.
class SampleJob : public QObject
{
    Q_OBJECT

public:
    SampleJob(oVIXWindowWait *wait, QObject *parent);

    /// From the beginning, one that runs too.
    void start();
    void stop();

signals:
    /// The job has come to its end; not after `stop`.
    void finished();

private:
    void step();

    QTimer m_timer;
    QPointer<oVIXWindowWait> m_wait;
    int m_percent = 0;
};
