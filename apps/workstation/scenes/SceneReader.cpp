#include "scenes/SceneReader.h"

#include <QDateTime>
#include <QFileInfo>
#include <QMutex>
#include <QThreadPool>

using namespace Qt::StringLiterals;

SceneFacts SceneFacts::of(const SceneFile &file)
{
    SceneFacts facts;
    facts.file = file;
    facts.metadata = VelmoSceneMetadataParser::withDefaults();
    facts.readable = facts.metadata.read(file.path).ok;
    facts.lastModified = QFileInfo(file.path).lastModified().toString(u"yyyy-MM-dd hh:mm");
    facts.newer = VelmoVersion::current() < facts.metadata.version;
    return facts;
}

/// The way from the reading threads back to the reader. It outlives the reader for as long as a thread holds it.
struct SceneReader::Delivery
{
    explicit Delivery(SceneReader *to) : receiver(to) { }

    bool isWanted()
    {
        const QMutexLocker locker(&mutex);
        return receiver;
    }

    void close()
    {
        const QMutexLocker locker(&mutex);
        receiver = nullptr;
    }

    /// Runs @p function in the reader's thread, unless the delivery has been closed by then.
    template <class Function> static void post(const std::shared_ptr<Delivery> &delivery, Function function)
    {
        const QMutexLocker locker(&delivery->mutex);
        if (!delivery->receiver)
            return;
        QMetaObject::invokeMethod(
            delivery->receiver,
            [delivery, function] {
                if (delivery->isWanted())
                    function(delivery->receiver);
            },
            Qt::QueuedConnection);
    }

    QMutex mutex;
    SceneReader *receiver;
};

SceneReader::SceneReader(QObject *parent) : QObject(parent)
{ }

SceneReader::~SceneReader()
{
    abandon();
}

void SceneReader::read(const QList<SceneFile> &files)
{
    abandon();
    m_delivery = std::make_shared<Delivery>(this);
    start(files);
}

void SceneReader::readAlso(const SceneFile &file)
{
    if (!m_delivery)
        m_delivery = std::make_shared<Delivery>(this);
    start({file});
}

bool SceneReader::isReading() const
{
    return m_listsUnderWay > 0;
}

void SceneReader::start(const QList<SceneFile> &files)
{
    ++m_listsUnderWay;
    QThreadPool::globalInstance()->start([delivery = m_delivery, files] {
        for (const SceneFile &file : files) {
            if (!delivery->isWanted())
                return;
            Delivery::post(delivery,
                           [facts = SceneFacts::of(file)](SceneReader *reader) { emit reader->sceneRead(facts); });
        }
        Delivery::post(delivery, [](SceneReader *reader) {
            if (--reader->m_listsUnderWay == 0)
                emit reader->finished();
        });
    });
}

void SceneReader::abandon()
{
    if (m_delivery)
        m_delivery->close();
    m_delivery.reset();
    m_listsUnderWay = 0;
}
