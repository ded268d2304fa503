#include "window/SceneKeeper.h"

#include "start/SceneQuestions.h"
#include "window/ScenePage.h"

#include <oVIXMainWindow.h>
#include <oVIXWindowWaitGlobal.h>

#include <QPointer>

#include <chrono>

using namespace std::chrono_literals;

namespace {

constexpr auto overlayInterval = 50ms;

} // namespace

SceneKeeper::SceneKeeper(ScenePage *page, oVIXMainWindow *window) : QObject(window), m_page(page), m_window(window)
{ }

bool SceneKeeper::save()
{
    if (m_isBusy)
        return false;
    const QPointer<SceneKeeper> self(this);
    m_isBusy = true;
    const bool isSaved = saveNow();
    if (!self)
        return false;
    m_isBusy = false;
    return isSaved;
}

bool SceneKeeper::mayLeave()
{
    if (m_isBusy)
        return false;
    if (!m_page->isModified() && !m_page->bake().isRunning())
        return true;
    const QPointer<SceneKeeper> self(this);
    m_isBusy = true;
    const bool may = ask();
    if (!self)
        return false;
    m_isBusy = false;
    if (may)
        m_page->stopBaking();
    return may;
}

bool SceneKeeper::ask()
{
    const Bake &bake = m_page->bake();
    const QString bakeNote = bake.isRunning() ? tr("%1 of %2 frames are baked. Baking stops when you leave the scene.")
                                                    .arg(bake.computedFrames())
                                                    .arg(bake.frameCount())
                                              : QString();
    const QPointer<SceneKeeper> self(this);
    const SceneQuestions::Leaving answer = SceneQuestions::askToSave(m_page->scene().name, bakeNote, m_window);
    if (!self || answer == SceneQuestions::Leaving::Stay)
        return false;
    if (answer == SceneQuestions::Leaving::Discard)
        return true;
    m_page->stopBaking();
    return saveNow();
}

bool SceneKeeper::saveNow()
{
    const QPointer<SceneKeeper> self(this);
    SceneSaving::Outcome outcome = write(SceneSaving::ChangedFile::Keep);
    if (self && outcome.hasKeptChanged) {
        if (!SceneQuestions::confirmReplacing(m_page->scene().name, m_window) || !self)
            return false;
        outcome = write(SceneSaving::ChangedFile::Replace);
    }
    if (!self)
        return false;
    if (!outcome.isSaved) {
        SceneQuestions::report(tr("Save scene"), outcome.problem, m_window);
        return false;
    }
    m_page->setSaved(outcome.scene);
    emit saved();
    return self != nullptr;
}

SceneSaving::Outcome SceneKeeper::write(SceneSaving::ChangedFile changed)
{
    const QPointer<oVIXMainWindow> window(m_window);
    m_window->startWaitDelayed();
    m_window->getWindowWait()->setText(tr("Saving the scene"));
    m_window->getWindowWait()->setTextVisible(true);
    QTimer report; // shows the overlay when it takes long
    connect(&report, &QTimer::timeout, m_window, [this] { m_window->getWindowWait()->progressEvent(QString()); });
    report.start(overlayInterval);
    SceneSaving::Outcome outcome = SceneSaving::saveInBackground(m_page->scene(), changed);
    if (window)
        window->endWait();
    return outcome;
}
