#include "window/WorkstationWindow.h"

#include "onboarding/Onboarding.h"
#include "panels/LibraryPanel.h"
#include "panels/ParametersPanel.h"
#include "panels/TagsPanel.h"
#include "start/SceneQuestions.h"
#include "start/StartScreen.h"
#include "window/PlayMenu.h"
#include "window/SceneEditor.h"
#include "window/SceneFactsDialog.h"
#include "window/SceneKeeper.h"
#include "window/ScenePage.h"
#include "window/WaitPicture.h"
#include "window/WelcomeDialog.h"

#include <VelmoAboutDialog.h>
#include <VelmoFeedbackConsentDialog.h>
#include <oVIXDock.h>
#include <oVIXMinMaxCloseWidget.h>
#include <oVIXTitleBar.h>
#include <oVIXWindowWaitGlobal.h>

#include <QApplication>
#include <QCloseEvent>
#include <QMenuBar>
#include <QPointer>
#include <QSettings>
#include <QStackedWidget>

#include <chrono>

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

namespace {

constexpr QSize startSize(1180, 760);
constexpr QSize logoSize(22, 32);
constexpr auto reportInterval = 50ms;
constexpr auto geometryKey = "window/geometry";
constexpr auto panelsKey = "window/panels";

} // namespace

/// The linker drops the pictures of a static library that nobody asks for.
static void useIcons()
{
    Q_INIT_RESOURCE(Workstation);
}

WorkstationWindow::WorkstationWindow(const QString &projectsFolder, QSettings *settings)
    : m_onboarding(new Onboarding(this, settings)), m_projectsFolder(projectsFolder), m_settings(settings),
      m_loading(getWindowWait(), getWindowWait())
{
    setWindowFlags(Qt::Window | Qt::FramelessWindowHint); // styles anew all that there is
    setWindowTitle(QGuiApplication::applicationDisplayName());
    m_pages = new QStackedWidget(this);
    m_startScreen = new StartScreen(projectsFolder, m_pages);
    m_pages->addWidget(m_startScreen);
    setCentralWidget(m_pages);
    showPage(m_startScreen);
    createMenus();
    createTitleBar();
    new WaitPicture(getWindowWait());
    resize(startSize);
    restoreLayout();

    connect(m_startScreen, &StartScreen::openRequested, this, &WorkstationWindow::openScene);
    connect(m_startScreen, &StartScreen::selectionChanged, this, &WorkstationWindow::updateActions);
    connect(&m_loading, &SceneLoading::loaded, this, &WorkstationWindow::showScene);
    connect(&m_loading, &SceneLoading::failed, this, &WorkstationWindow::reportProblem);
    connect(&m_loading, &SceneLoading::cancelled, this, &WorkstationWindow::noteProblem);
    m_reportTimer.setInterval(reportInterval);
    connect(&m_reportTimer, &QTimer::timeout, this, [this] { getWindowWait()->progressEvent(QString()); });
    updateActions();
}

WorkstationWindow::~WorkstationWindow() = default;

StartScreen *WorkstationWindow::startScreen() const
{
    return m_startScreen;
}

ScenePage *WorkstationWindow::scenePage()
{
    return editor()->page();
}

LibraryPanel *WorkstationWindow::libraryPanel()
{
    return editor()->library();
}

ParametersPanel *WorkstationWindow::parametersPanel()
{
    return editor()->parameters();
}

TagsPanel *WorkstationWindow::tagsPanel()
{
    return editor()->tags();
}

bool WorkstationWindow::showsScene() const
{
    return m_pages->currentWidget() != m_startScreen;
}

bool WorkstationWindow::isLoading() const
{
    return m_loading.isLoading();
}

void WorkstationWindow::openScene(const QString &path)
{
    if (isLoading() || !mayLeaveScene())
        return;
    startWaitDelayed();
    oVIXWindowWaitGlobal *wait = getWindowWait();
    wait->setText(tr("Opening the scene"));
    wait->setPercent(0);
    wait->setTextVisible(true);
    wait->setPercentVisible(true);
    m_loading.load(path);
    editor(); // meanwhile
    m_reportTimer.start();
    updateActions();
}

void WorkstationWindow::saveScene()
{
    if (!showsScene() || isLoading())
        return;
    m_editor->finishEdits();
    m_editor->keeper()->save(); // the window may be gone afterwards
}

void WorkstationWindow::closeScene()
{
    if (!showsScene() || !mayLeaveScene())
        return;
    hidePanels();
    showPage(m_startScreen);
    setWindowModified(false);
    setWindowTitle(QGuiApplication::applicationDisplayName());
    if (std::exchange(m_isListStale, false))
        m_startScreen->refresh();
    updateActions();
}

void WorkstationWindow::showSceneFacts()
{
    if (showsScene())
        (new SceneFactsDialog(m_editor->page()->scene(), this))->open();
}

void WorkstationWindow::showWelcome()
{
    (new WelcomeDialog(m_projectsFolder, this))->open();
}

void WorkstationWindow::showFeedbackConsent()
{
    auto *dialog = new VelmoFeedbackConsentDialog(this);
    dialog->setAttribute(Qt::WA_DeleteOnClose);
    dialog->open();
}

void WorkstationWindow::showAbout()
{
    auto *dialog = new VelmoAboutDialog(this);
    dialog->setAttribute(Qt::WA_DeleteOnClose);
    dialog->open();
}

void WorkstationWindow::beginOnboarding()
{
    m_onboarding->begin();
}

void WorkstationWindow::showTour()
{
    m_onboarding->showTour();
}

void WorkstationWindow::changeEvent(QEvent *event)
{
    oVIXMainWindow::changeEvent(event);
    if (event->type() != QEvent::WindowStateChange)
        return;
    setGripsEnabled(!isMaximized());
    m_titleBar->getCloseWidget()->setMaximized(isMaximized());
    updateActions();
}

void WorkstationWindow::closeEvent(QCloseEvent *event)
{
    if (!mayLeaveScene()) {
        event->ignore();
        return;
    }
    m_loading.cancel();
    m_onboarding->endTour();
    saveLayout();
    oVIXMainWindow::closeEvent(event);
}

void WorkstationWindow::keyPressEvent(QKeyEvent *event)
{
    if (event->key() == Qt::Key_Escape && isLoading())
        m_loading.cancel();
    else
        oVIXMainWindow::keyPressEvent(event);
}

void WorkstationWindow::createMenus()
{
    menuBar()->setNativeMenuBar(false);

    QMenu *scene = menuBar()->addMenu(tr("Scene"));
    m_openAction = scene->addAction(tr("Open"), QKeySequence::Open, m_startScreen, &StartScreen::openSelectedScene);
    m_newAction = scene->addAction(tr("New scene"), QKeySequence::New, m_startScreen, &StartScreen::addScene);
    m_saveAction = scene->addAction(tr("Save"), QKeySequence::Save, this, &WorkstationWindow::saveScene);
    m_factsAction = scene->addAction(tr("Facts"), tr("Ctrl+I"), this, &WorkstationWindow::showSceneFacts);
    m_closeSceneAction =
        scene->addAction(tr("Back to projects"), QKeySequence::Close, this, &WorkstationWindow::closeScene);
    scene->addSeparator();
    m_fileActions = {
        scene->addAction(tr("Rename"), tr("F2"), m_startScreen, &StartScreen::renameSelectedScene),
        scene->addAction(tr("Clone"), tr("Ctrl+D"), m_startScreen, &StartScreen::cloneSelectedScene),
        scene->addAction(tr("Delete"), QKeySequence::Delete, m_startScreen, &StartScreen::deleteSelectedScene),
    };
    scene->addSeparator();
    scene->addAction(tr("Quit"), tr("Ctrl+Q"), this, &QWidget::close);

    m_windowMenu = menuBar()->addMenu(tr("Window"));
    m_windowMenu->addAction(tr("Minimize"), this, &QWidget::showMinimized);
    m_maximizeAction = m_windowMenu->addAction(QString(), this, &WorkstationWindow::toggleMaximized);
    m_windowMenu->addSeparator();
    connect(m_windowMenu, &QMenu::aboutToShow, this, &WorkstationWindow::editor); // the panels are listed

    QMenu *help = menuBar()->addMenu(tr("Help"));
    help->addAction(tr("Welcome"), QKeySequence::HelpContents, this, &WorkstationWindow::showWelcome);
    help->addAction(tr("Guided tour"), this, &WorkstationWindow::showTour);
    help->addAction(tr("Feedback program"), this, &WorkstationWindow::showFeedbackConsent);
    help->addSeparator();
    help->addAction(tr("About"), this, &WorkstationWindow::showAbout);
}

void WorkstationWindow::createTitleBar()
{
    useIcons();
    m_titleBar = new oVIXTitleBar(menuBar(), true, true, true);
    m_titleBar->setLogo(u":/Workstation/Logo"_s, logoSize);
    connect(m_titleBar, &oVIXTitleBar::minimized, this, &QWidget::showMinimized);
    connect(m_titleBar, &oVIXTitleBar::maximized, this, &WorkstationWindow::toggleMaximized);
    connect(m_titleBar, &oVIXTitleBar::closed, this, &QWidget::close);
}

SceneEditor *WorkstationWindow::editor()
{
    if (m_editor)
        return m_editor;
    m_editor = new SceneEditor(this, m_pages);
    m_playMenu = new PlayMenu(m_editor->page(), menuBar());
    menuBar()->insertMenu(m_windowMenu->menuAction(), m_playMenu);
    m_detachMenu = new QMenu(tr("Detach or dock"), m_windowMenu);
    for (oVIXDock *panel : m_editor->panels()) {
        m_windowMenu->addAction(panel->toggleViewAction());
        m_detachMenu->addAction(panel->windowTitle(), panel, &oVIXDock::detachTriggered);
    }
    m_windowMenu->addMenu(m_detachMenu);
    connect(m_editor->page(), &ScenePage::modifiedChanged, this,
            [this](bool isModified) { setWindowModified(isModified && showsScene()); });
    connect(m_editor->keeper(), &SceneKeeper::saved, this, [this] { m_isListStale = true; });
    updateActions();
    return m_editor;
}

void WorkstationWindow::showPage(QWidget *page)
{
    m_onboarding->endTour();
    // The smallest size of the other page does not count.
    for (int i = 0; i < m_pages->count(); ++i) {
        QWidget *each = m_pages->widget(i);
        const auto policy = each == page ? QSizePolicy::Preferred : QSizePolicy::Ignored;
        each->setSizePolicy(policy, policy);
    }
    m_pages->setCurrentWidget(page);
}

void WorkstationWindow::hidePanels()
{
    m_panelState = saveState();
    for (oVIXDock *panel : m_editor->panels())
        panel->hide();
}

void WorkstationWindow::restorePanels()
{
    if (restoreState(m_panelState))
        return;
    for (oVIXDock *panel : m_editor->panels())
        panel->show();
    // Panels that come into a window on screen get no more room than they need.
    resizeDocks({m_editor->library(), m_editor->tags()}, {3 * height() / 7, 4 * height() / 7}, Qt::Vertical);
}

void WorkstationWindow::saveLayout()
{
    if (!m_settings)
        return;
    m_settings->setValue(geometryKey, saveGeometry());
    m_settings->setValue(panelsKey, showsScene() ? saveState() : m_panelState);
}

void WorkstationWindow::restoreLayout()
{
    if (!m_settings)
        return;
    restoreGeometry(m_settings->value(geometryKey).toByteArray());
    const QByteArray state = m_settings->value(panelsKey).toByteArray();
    if (!state.isEmpty())
        m_panelState = state;
}

void WorkstationWindow::toggleMaximized()
{
    if (isMaximized())
        showNormal();
    else
        showMaximized();
}

void WorkstationWindow::showScene(const Scene &scene)
{
    m_editor->setScene(scene);
    showPage(m_editor->page());
    restorePanels();
    const QString shownName = QString(scene.name).replace(u"[*]"_s, u"[*][*]"_s);
    setWindowTitle(tr("%1[*] - %2").arg(shownName, QGuiApplication::applicationDisplayName()));
    setWindowModified(m_editor->page()->isModified());
    endLoading();
}

bool WorkstationWindow::mayLeaveScene()
{
    if (!showsScene())
        return true;
    m_editor->finishEdits();
    return m_editor->keeper()->mayLeave();
}

void WorkstationWindow::noteProblem(const QString &problem)
{
    m_startScreen->showProblem(problem);
    endLoading();
}

void WorkstationWindow::reportProblem(const QString &problem)
{
    noteProblem(problem);
    SceneQuestions::report(tr("Open scene"), problem, this); // the window may be gone afterwards
}

void WorkstationWindow::endLoading()
{
    m_reportTimer.stop();
    endWait();
    updateActions();
    emit loadingFinished();
}

void WorkstationWindow::updateActions()
{
    const bool ready = !isLoading();
    m_openAction->setEnabled(ready && !showsScene() && m_startScreen->canOpen());
    m_newAction->setEnabled(ready && !showsScene() && m_startScreen->canAdd());
    for (QAction *action : std::as_const(m_fileActions))
        action->setEnabled(m_openAction->isEnabled());
    m_saveAction->setEnabled(ready && showsScene()); // also for what is still being typed
    m_closeSceneAction->setEnabled(ready && showsScene());
    m_factsAction->setEnabled(ready && showsScene());
    m_maximizeAction->setText(isMaximized() ? tr("Restore") : tr("Maximize"));
    if (!m_editor)
        return;
    m_playMenu->menuAction()->setVisible(showsScene());
    m_detachMenu->setEnabled(showsScene());
    for (oVIXDock *panel : m_editor->panels())
        panel->toggleViewAction()->setEnabled(showsScene());
}
