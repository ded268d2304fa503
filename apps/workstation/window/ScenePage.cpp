#include "window/ScenePage.h"

#include "look/Sheets.h"
#include "scenes/SceneTags.h"
#include "simulation/Crowd.h"
#include "start/StatusLine.h"
#include "window/SceneView.h"

#include <OvixMovableLabel.h>
#include <OvixSvgButton.h>
#include <VelmoMessageBox.h>
#include <oVIXFloatingProgressBar.h>
#include <oVIXTimebarWidget.h>
#include <oVIXToggle.h>

#include <QHBoxLayout>
#include <QLabel>
#include <QPointer>

#include <algorithm>
#include <chrono>

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

namespace {

constexpr int defaultSeconds = 20;
constexpr qint64 mostPositions = 20'000'000; // of all people in all frames, to stay within 320 MB
constexpr qint64 mostFrames = 1'000'000;
constexpr int trailFrames = 50;
constexpr int trailStep = 2;
constexpr auto bakeShown = 40ms;
constexpr int secondsToThink = 3;
constexpr QSize playSize(32, 32);

int framesFor(const Scene &scene)
{
    return int(std::min<qint64>({scene.frames, mostFrames, mostPositions / std::max(1, scene.crowdSize())}));
}

/// The first and the last frame that play, of those that there are.
std::pair<int, int> cropOf(const Scene &scene, int lastFrame)
{
    if (!scene.hasCrop())
        return {0, lastFrame};
    return {std::min(scene.cropFirst, lastFrame), std::min(scene.cropLast, lastFrame)};
}

} // namespace

ScenePage::ScenePage(QWidget *parent)
    : QWidget(parent), m_view(new SceneView(this)), m_progress(new oVIXFloatingProgressBar(m_view)),
      m_facts(new StatusLine(this)), m_unsaved(new QLabel(tr("Not saved"), this))
{
    setObjectName(u"window"_s);
    setStyleSheet(Sheets::window());
    auto *layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(0);
    layout->addWidget(m_view, 1);
    layout->addWidget(createPlayer());
    layout->addWidget(m_facts);
    m_progress->hide();
    m_unsaved->setObjectName(u"unsaved"_s);
    m_facts->layout()->addWidget(m_unsaved);
    m_unsaved->hide();

    connect(&m_playTimer, &QTimer::timeout, this, &ScenePage::playNext);
    m_bakeTimer.setInterval(bakeShown);
    connect(&m_bakeTimer, &QTimer::timeout, this, &ScenePage::showBaked);
    connect(&m_bake, &Bake::stopped, this, &ScenePage::finishBaking);
    connect(m_timebar, &oVIXTimebarWidget::s_valuePicked, this, &ScenePage::takeOverPickedFrame);
    connect(m_timebar, &oVIXTimebarWidget::s_cropChanged, this, &ScenePage::takeOverCrop);
}

void ScenePage::setScene(const Scene &scene, const CrowdSettings &settings)
{
    m_bake.clear(); // what ends here was the scene before
    m_scene = scene;
    m_scene.crowd = settings;
    if (m_scene.frames == 0)
        m_scene.frames = int(defaultSeconds * m_scene.framesPerSecond);
    m_saved = m_scene;
    m_view->setScene(m_scene);
    showCrowd();
    updateModified();
    showFacts();
}

const Scene &ScenePage::scene() const
{
    return m_scene;
}

bool ScenePage::isModified() const
{
    return m_isModified;
}

void ScenePage::setSaved(const Scene &saved)
{
    m_saved = saved;
    m_scene.document = saved.document;
    m_scene.version = saved.version;
    m_facts->showNote(savedNote());
    updateModified();
}

SceneView *ScenePage::view() const
{
    return m_view;
}

oVIXTimebarWidget *ScenePage::timebar() const
{
    return m_timebar;
}

const Bake &ScenePage::bake() const
{
    return m_bake;
}

void ScenePage::setCrowd(const CrowdSettings &settings)
{
    if (settings == m_scene.crowd)
        return;
    m_scene.crowd = settings;
    showCrowd();
    m_scene.setBaked(0);
    updateModified();
}

void ScenePage::setTags(const QStringList &assigned, const QStringList &available)
{
    SceneTags::arrange(&m_scene, assigned, available);
    m_view->setTags(m_scene);
    updateModified();
}

void ScenePage::showCrowd()
{
    setPlaying(false);
    m_bake.clear();
    setFrames(framesFor(m_scene));
    m_timebar->setPlayWidgetFrame(0);
    m_view->setPeople(Crowd(m_scene, *m_scene.crowd).people());
    m_playButton->setEnabled(false);
}

void ScenePage::setFrames(int frames)
{
    const int last = std::max(0, frames - 1);
    const auto [cropFirst, cropLast] = cropOf(m_scene, last);
    m_timebar->setMaxValue(last);
    m_timebar->setCropValues(cropFirst, cropLast);
}

void ScenePage::takeOverCrop()
{
    m_timebar->constrainPlayTimeToCropValues();
    if (m_bake.computedFrames() > 0)
        showFrame(m_timebar->getCurrentPlayValue());
    // An end that nobody has moved stays, also when it is beyond the frames that there are room for.
    const auto [first, last] = cropOf(m_scene, m_timebar->getMax());
    const bool isNew = !m_scene.hasCrop();
    if (isNew || m_timebar->getCropStartValue() != first)
        m_scene.cropFirst = m_timebar->getCropStartValue();
    if (isNew || m_timebar->getCropEndValue() != last)
        m_scene.cropLast = m_timebar->getCropEndValue();
    updateModified();
}

void ScenePage::updateModified()
{
    const bool isModified = m_scene != m_saved;
    if (isModified == m_isModified)
        return;
    m_isModified = isModified;
    m_unsaved->setVisible(isModified);
    if (isModified && m_facts->text() == savedNote())
        showFacts();
    emit modifiedChanged(isModified);
}

QString ScenePage::savedNote() const
{
    return tr("\"%1\" has been saved.").arg(m_saved.name);
}

void ScenePage::showFacts()
{
    const auto counted = [](qsizetype count, const QString &one, const QString &many) {
        return count == 1 ? one : many.arg(count);
    };
    QStringList facts{counted(m_scene.crowdSize(), tr("1 person"), tr("%1 people")),
                      counted(m_scene.vehicles.size(), tr("1 vehicle"), tr("%1 vehicles"))};
    if (!m_scene.groundName.isEmpty())
        facts << m_scene.groundName;
    m_facts->showNote(tr("%1: %2").arg(m_scene.name, facts.join(u", "_s)));
}

void ScenePage::toggleBaking()
{
    if (m_bake.isRunning()) {
        m_bake.stop();
        return;
    }
    if (m_bake.computedFrames() > 0 && !askToReplaceFrames())
        return;
    setPlaying(false);
    m_bake.start(m_scene, *m_scene.crowd, framesFor(m_scene), m_scene.framesPerSecond);
    m_scene.setBaked(0);
    updateModified();
    setFrames(m_bake.frameCount());
    m_view->setPeople(m_bake.people());
    m_progress->setPercent(0);
    m_progress->show();
    m_progress->raise();
    m_progress->moveToBottom();
    m_bakeTimer.start();
    m_facts->showNote(tr("Baking %1 frames of %2 people")
                          .arg(QString::number(m_bake.frameCount()), QString::number(m_scene.crowdSize())));
    emit bakingChanged(true);
}

bool ScenePage::askToReplaceFrames()
{
    setPlaying(false);
    const QPointer<ScenePage> self(this);
    const QString question = tr("%1 of %2 frames are baked.<br>Baking again replaces them.")
                                 .arg(QString::number(m_bake.computedFrames()), QString::number(m_bake.frameCount()));
    const VelmoMsgReturnCode answer =
        VelmoCustomThreeOptionMessage(tr("QUESTION"), tr("Replace existing bake"), question, tr("Replace"),
                                      tr("Keep and play"), false, secondsToThink, window(), nullptr);
    if (!self)
        return false;
    if (answer == MsgOther)
        setPlaying(true);
    return answer == MsgAccepted && !m_bake.isRunning();
}

void ScenePage::stopBaking()
{
    m_bake.stop();
}

bool ScenePage::isPlaying() const
{
    return m_playTimer.isActive();
}

void ScenePage::setPlaying(bool playing)
{
    const bool plays = playing && m_bake.computedFrames() > 0;
    if (plays)
        m_playTimer.start(qRound(1000.0 / m_bake.framesPerSecond()));
    else
        m_playTimer.stop();
    m_playButton->setFilename(plays ? u":/Workstation/Pause"_s : u":/Workstation/Play"_s);
    m_playButton->setAccessibleName(plays ? tr("Pause") : tr("Play"));
}

void ScenePage::goToFrame(int frame)
{
    m_timebar->setPlayWidgetFrame(frame);
    showFrame(m_timebar->getCurrentPlayValue());
}

void ScenePage::step(int frames)
{
    if (m_bake.computedFrames() == 0)
        return;
    setPlaying(false);
    const int frame = m_timebar->getCurrentPlayValue() + frames;
    if (frame >= m_timebar->getCropStartValue() && frame <= m_timebar->getCropEndValue()
        && frame < m_bake.computedFrames())
        goToFrame(frame);
}

void ScenePage::startCropHere()
{
    m_timebar->setCropValues(m_timebar->getCurrentPlayValue(), m_timebar->getCropEndValue());
    takeOverCrop();
}

void ScenePage::endCropHere()
{
    m_timebar->setCropValues(m_timebar->getCropStartValue(), m_timebar->getCurrentPlayValue());
    takeOverCrop();
}

void ScenePage::clearCrop()
{
    m_timebar->setCropValues(0, m_timebar->getMax());
    takeOverCrop();
}

void ScenePage::hideEvent(QHideEvent *event)
{
    setPlaying(false);
    QWidget::hideEvent(event);
}

QWidget *ScenePage::createPlayer()
{
    auto *player = new QWidget(this);
    player->setObjectName(u"player"_s);
    player->setAttribute(Qt::WA_StyledBackground);
    m_playButton = new OvixSvgButton(player);
    m_playButton->setFixedSize(playSize);
    m_playButton->setHoverVisible(true);
    m_playButton->setFocusPolicy(Qt::TabFocus);
    connect(m_playButton, &OvixSvgButton::clicked, this, [this] { setPlaying(!isPlaying()); });

    auto *modes = new oVIXToggle(player);
    const auto addMode = [this, modes](ViewOptions::Mode mode, const QString &icon, const QString &name) {
        modes->addState(u":/Workstation/%1"_s.arg(icon), u":/Workstation/%1Checked"_s.arg(icon), name, QString());
        connect(modes, &oVIXToggle::changed, this, [this, mode, name](const QString &chosen) {
            if (chosen != name)
                return;
            ViewOptions options = m_view->options();
            options.mode = mode;
            m_view->setOptions(options);
            if (m_bake.computedFrames() > 0)
                showFrame(m_timebar->getCurrentPlayValue());
        });
    };
    addMode(ViewOptions::Mode::Dots, u"Dots"_s, tr("Where people are"));
    addMode(ViewOptions::Mode::Trails, u"Trails"_s, tr("Where they come from"));
    addMode(ViewOptions::Mode::Density, u"Density"_s, tr("How dense they stand"));
    const QList<OvixSvgButton *> modeButtons = modes->findChildren<OvixSvgButton *>();
    for (OvixSvgButton *mode : modeButtons)
        mode->setFocusPolicy(Qt::TabFocus);
    modes->setAccessibleName(tr("View"));
    modes->setFixedHeight(oVIXToggle::StateWidth);

    m_timebar = new oVIXTimebarWidget(player);
    m_timebar->setAccessibleName(tr("Timeline"));
    const QList<OvixMovableLabel *> markers = m_timebar->findChildren<OvixMovableLabel *>();
    for (OvixMovableLabel *marker : markers)
        marker->setFocusPolicy(Qt::TabFocus);

    auto *layout = new QHBoxLayout(player);
    layout->setContentsMargins(12, 4, 12, 4);
    layout->setSpacing(12);
    layout->addWidget(modes);
    layout->addWidget(m_playButton);
    layout->addWidget(m_timebar, 1);
    setPlaying(false);
    return player;
}

void ScenePage::showBaked()
{
    const int computed = m_bake.computedFrames();
    m_timebar->updateCachedValue(computed - 1);
    m_timebar->setPlayWidgetFrame(m_timebar->getCurrentPlayValue());
    m_progress->setPercent(m_bake.frameCount() > 0 ? int(qint64(computed) * 100 / m_bake.frameCount()) : 100);
    m_playButton->setEnabled(computed > 0);
}

void ScenePage::showFrame(int frame)
{
    QList<QList<QPointF>> trail;
    if (m_view->options().mode == ViewOptions::Mode::Trails) {
        for (int before = frame - trailStep; before >= std::max(0, frame - trailFrames); before -= trailStep)
            trail << m_bake.positions(before);
    }
    m_view->setPositions(m_bake.positions(frame), trail);
}

void ScenePage::playNext()
{
    const int next = m_timebar->getCurrentPlayValue() + 1;
    const bool ended = next > m_timebar->getCropEndValue() || next >= m_bake.computedFrames();
    goToFrame(ended ? m_timebar->getCropStartValue() : next);
}

void ScenePage::takeOverPickedFrame()
{
    m_timebar->unblock();
    m_timebar->setPlayWidgetFrame(m_timebar->getSelectedValue());
    m_timebar->constrainPlayTimeToCropValues();
    goToFrame(m_timebar->getCurrentPlayValue());
}

void ScenePage::finishBaking()
{
    m_bakeTimer.stop();
    showBaked();
    m_progress->hide();
    m_scene.setBaked(m_bake.computedFrames());
    updateModified();
    const bool whole = m_bake.computedFrames() == m_bake.frameCount();
    m_facts->showNote(whole ? tr("%1 frames are baked").arg(m_bake.frameCount())
                            : tr("Baking was stopped after %1 frames").arg(m_bake.computedFrames()));
    emit bakingChanged(false);
}
