#include "scenes/SceneReader.h"

#include "scenes/Delivery.h"

#include <QElapsedTimer>
#include <QFileInfo>
#include <QPointer>
#include <QThreadPool>

#include <utility>

namespace {

// milliseconds
constexpr qint64 longestBatch = 20;
constexpr qint64 longestTurn = 8; // not to be felt by who moves the pointer

} // namespace

SceneFacts SceneFacts::of(const SceneFile &file)
{
    SceneFacts facts;
    facts.file = file;
    facts.metadata = VelmoSceneMetadataParser::withDefaults();
    facts.readable = facts.metadata.read(file.path).ok;
    facts.lastModified = QFileInfo(file.path).lastModified();
    return facts;
}

SceneReader::SceneReader(QObject *parent) : QObject(parent)
{
    m_turns.setInterval(0);
    connect(&m_turns, &QTimer::timeout, this, &SceneReader::handOver);
}

SceneReader::~SceneReader()
{
    abandon();
}

void SceneReader::read(const QList<SceneFile> &files)
{
    abandon();
    m_delivery = std::make_shared<Delivery<SceneReader>>(this);
    start(files);
}

void SceneReader::readAlso(const SceneFile &file)
{
    if (!m_delivery)
        m_delivery = std::make_shared<Delivery<SceneReader>>(this);
    start({file});
}

bool SceneReader::isReading() const
{
    return m_listsUnderWay > 0 || m_turns.isActive();
}

void SceneReader::start(const QList<SceneFile> &files)
{
    ++m_listsUnderWay;
    QThreadPool::globalInstance()->start([delivery = m_delivery, files] {
        const auto post = [&delivery](const QList<SceneFacts> &batch, int endedLists) {
            Delivery<SceneReader>::post(delivery, [batch, endedLists](SceneReader *reader) {
                reader->m_arrived += batch;
                reader->m_listsUnderWay -= endedLists;
                reader->m_turns.start();
            });
        };
        QList<SceneFacts> batch;
        QElapsedTimer sincePost;
        sincePost.start();
        for (const SceneFile &file : files) {
            if (!delivery->isWanted())
                return;
            batch << SceneFacts::of(file);
            if (sincePost.hasExpired(longestBatch)) {
                post(std::exchange(batch, {}), 0);
                sincePost.restart();
            }
        }
        post(batch, 1);
    });
}

void SceneReader::handOver()
{
    const QPointer<SceneReader> self(this);
    QElapsedTimer turn;
    turn.start();
    while (!m_arrived.isEmpty() && !turn.hasExpired(longestTurn)) {
        emit sceneRead(m_arrived.takeFirst());
        if (!self)
            return;
    }
    // Whoever has listened may have asked for another list.
    if (!m_arrived.isEmpty() || !m_turns.isActive())
        return;
    m_turns.stop();
    if (m_listsUnderWay == 0)
        emit finished();
}

void SceneReader::abandon()
{
    if (m_delivery)
        m_delivery->close();
    m_delivery.reset();
    m_listsUnderWay = 0;
    m_arrived.clear();
    m_turns.stop();
}
