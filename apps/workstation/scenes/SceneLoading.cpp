#include "scenes/SceneLoading.h"

#include "VelmoPercentListener.h"
#include "VelmoProgressListener.h"
#include "scenes/SceneContentReader.h"

#include <QThread>

#include <utility>

SceneLoading::SceneLoading(VelmoProgressListener *progress, VelmoPercentListener *percent, QObject *parent)
    : QObject(parent), m_progress(progress), m_percent(percent)
{ }

SceneLoading::~SceneLoading()
{
    cancel();
    if (m_thread)
        m_thread->wait();
}

void SceneLoading::load(const QString &path)
{
    if (m_thread)
        return;
    m_cancelled = false;
    m_thread.reset(QThread::create([this, path] {
        SceneContentReader reader;
        reader.onStep = [this](const QString &text) { m_progress->progressEvent(text); };
        reader.onPercent = [this](int percent) { m_percent->percentEvent(percent); };
        reader.isCancelled = [this] { return m_cancelled.load(); };
        m_outcome.isGood = reader.read(path, &m_outcome.scene);
        m_outcome.problem = reader.problem();
    }));
    connect(m_thread.get(), &QThread::finished, this, &SceneLoading::finish);
    m_outcome.problem = tr("There is no thread to open the scene with.");
    m_thread->start();
    if (!m_thread->isRunning() && !m_thread->isFinished())
        QMetaObject::invokeMethod(this, &SceneLoading::finish, Qt::QueuedConnection);
}

void SceneLoading::cancel()
{
    m_cancelled = true;
}

bool SceneLoading::isLoading() const
{
    return m_thread != nullptr;
}

void SceneLoading::finish()
{
    m_thread->wait();
    m_thread.release()->deleteLater();
    const Outcome outcome = std::exchange(m_outcome, Outcome());
    if (m_cancelled) // perhaps after the reader's last look
        emit cancelled(outcome.isGood ? SceneContentReader::cancelledText(outcome.scene.name) : outcome.problem);
    else if (!outcome.isGood)
        emit failed(outcome.problem);
    else
        emit loaded(outcome.scene);
}
