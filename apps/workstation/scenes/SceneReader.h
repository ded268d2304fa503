#pragma once

#include "VelmoSceneMetadataParser.h"
#include "scenes/SceneFile.h"

#include <QDateTime>
#include <QList>
#include <QObject>
#include <QTimer>

#include <memory>

template <class Receiver> class Delivery;

/// What a list of scenes shows of one scene file.
struct SceneFacts
{
    SceneFile file;
    VelmoSceneMetadataParser metadata;
    /// When the file was last changed; invalid when unknown.
    QDateTime lastModified;
    /// False for a file that is no scene, or a broken one. Its metadata is what could be read.
    bool readable = false;

    /// Reads the file. Safe in any thread.
    static SceneFacts of(const SceneFile &file);
};

/// Reads scene files in the background and hands the facts over in the thread of this object, file by file in the
/// order asked for, never so many in a row that the thread's other events have to wait for long. A new list abandons
/// the one under way: nothing of it arrives any more. The reader may be deleted at any time.
class SceneReader : public QObject
{
    Q_OBJECT

public:
    explicit SceneReader(QObject *parent = nullptr);
    ~SceneReader() override;

    /// Starts reading @p files in place of all earlier ones. `finished` follows also for an empty list.
    void read(const QList<SceneFile> &files);
    /// Reads @p file too, without abandoning anything.
    void readAlso(const SceneFile &file);
    bool isReading() const;

signals:
    void sceneRead(const SceneFacts &facts);
    /// Nothing is left to be read.
    void finished();

private:
    void start(const QList<SceneFile> &files);
    void handOver();
    void abandon();

    std::shared_ptr<Delivery<SceneReader>> m_delivery;
    int m_listsUnderWay = 0;
    /// What has been read and not been handed over.
    QList<SceneFacts> m_arrived;
    /// Runs until all of it has been handed over, one turn of the event loop after the other.
    QTimer m_turns;
};
