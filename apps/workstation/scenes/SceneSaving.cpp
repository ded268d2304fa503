#include "scenes/SceneSaving.h"

#include "VelmoVersion.h"
#include "scenes/SceneContentWriter.h"

#include <QEventLoop>
#include <QFile>
#include <QSaveFile>
#include <QThread>

#include <memory>

namespace {

enum class Found { AsRead, Changed, Unreadable };

/// A file that has gone is nobody's change.
Found compareFile(QFile *file, const QByteArray &asRead)
{
    if (!file->exists())
        return Found::AsRead;
    if (!file->open(QIODevice::ReadOnly))
        return Found::Unreadable;
    const bool isSame = file->size() == asRead.size() && file->readAll() == asRead;
    if (file->error() != QFileDevice::NoError)
        return Found::Unreadable;
    return isSame ? Found::AsRead : Found::Changed;
}

} // namespace

SceneSaving::Outcome SceneSaving::save(const Scene &scene, ChangedFile changed)
{
    Outcome outcome;
    const auto refuse = [&outcome, &scene](const QString &problem) {
        outcome.problem = tr("\"%1\" cannot be saved: %2").arg(scene.name, problem);
        return outcome;
    };

    QFile before(scene.path);
    switch (compareFile(&before, scene.document)) {
    case Found::Unreadable:
        return refuse(before.errorString());
    case Found::Changed:
        if (changed == ChangedFile::Keep) {
            outcome.hasKeptChanged = true;
            return refuse(tr("the file has been changed by somebody else."));
        }
        break;
    case Found::AsRead:
        break;
    }
    before.close();

    outcome.scene = scene;
    outcome.scene.version = VelmoVersion::current().toString();
    SceneContentWriter writer(outcome.scene);
    if (!writer.write())
        return refuse(writer.problem());
    QSaveFile file(scene.path);
    if (!file.open(QIODevice::WriteOnly) || file.write(writer.document()) != writer.document().size() || !file.commit())
        return refuse(file.errorString());
    outcome.scene.document = writer.document();
    outcome.isSaved = true;
    return outcome;
}

SceneSaving::Outcome SceneSaving::saveInBackground(const Scene &scene, ChangedFile changed)
{
    Outcome outcome;
    QEventLoop loop;
    const std::unique_ptr<QThread> thread(
        QThread::create([&outcome, scene, changed] { outcome = save(scene, changed); }));
    QObject::connect(thread.get(), &QThread::finished, &loop, &QEventLoop::quit);
    thread->start();
    if (!thread->isRunning() && !thread->isFinished())
        return save(scene, changed); // there are no more threads
    loop.exec(QEventLoop::ExcludeUserInputEvents);
    thread->wait();
    return outcome;
}
