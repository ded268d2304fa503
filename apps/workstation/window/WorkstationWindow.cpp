#include "window/WorkstationWindow.h"

#include "start/StartScreen.h"
#include "window/SceneFactsDialog.h"
#include "window/ScenePage.h"

#include <oVIXMinMaxCloseWidget.h>
#include <oVIXTitleBar.h>
#include <oVIXWindowWaitGlobal.h>

#include <QCloseEvent>
#include <QGuiApplication>
#include <QMenuBar>
#include <QStackedWidget>

#include <chrono>

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

namespace {

constexpr QSize startSize(1180, 760);
constexpr QSize logoSize(22, 32);
constexpr auto reportInterval = 50ms;

} // namespace

/// The linker drops the pictures of a static library that nobody asks for.
static void useResources()
{
    Q_INIT_RESOURCE(Workstation);
}

WorkstationWindow::WorkstationWindow(const QString &projectsFolder)
    : m_pages(new QStackedWidget(this)), m_startScreen(new StartScreen(projectsFolder, m_pages)),
      m_scenePage(new ScenePage(m_pages)), m_loading(getWindowWait(), getWindowWait())
{
    setWindowFlags(Qt::Window | Qt::FramelessWindowHint);
    setWindowTitle(QGuiApplication::applicationDisplayName());
    m_pages->addWidget(m_startScreen);
    m_pages->addWidget(m_scenePage);
    setCentralWidget(m_pages);
    createMenus();
    createTitleBar();
    resize(startSize);

    connect(m_startScreen, &StartScreen::openRequested, this, &WorkstationWindow::openScene);
    connect(m_startScreen, &StartScreen::selectionChanged, this, &WorkstationWindow::updateActions);
    connect(&m_loading, &SceneLoading::loaded, this, &WorkstationWindow::showScene);
    connect(&m_loading, &SceneLoading::failed, this, &WorkstationWindow::reportProblem);
    m_reportTimer.setInterval(reportInterval);
    connect(&m_reportTimer, &QTimer::timeout, this, [this] { getWindowWait()->progressEvent(QString()); });
    updateActions();
}

WorkstationWindow::~WorkstationWindow() = default;

StartScreen *WorkstationWindow::startScreen() const
{
    return m_startScreen;
}

ScenePage *WorkstationWindow::scenePage() const
{
    return m_scenePage;
}

bool WorkstationWindow::showsScene() const
{
    return m_pages->currentWidget() == m_scenePage;
}

bool WorkstationWindow::isLoading() const
{
    return m_loading.isLoading();
}

void WorkstationWindow::openScene(const QString &path)
{
    if (isLoading())
        return;
    startWaitDelayed();
    oVIXWindowWaitGlobal *wait = getWindowWait();
    wait->setText(tr("Opening the scene"));
    wait->setPercent(0);
    wait->setTextVisible(true);
    wait->setPercentVisible(true);
    m_loading.load(path);
    m_reportTimer.start();
    updateActions();
}

void WorkstationWindow::closeScene()
{
    m_pages->setCurrentWidget(m_startScreen);
    setWindowTitle(QGuiApplication::applicationDisplayName());
    updateActions();
}

void WorkstationWindow::showSceneFacts()
{
    if (showsScene())
        (new SceneFactsDialog(m_scenePage->scene(), this))->open();
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
    m_loading.cancel();
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
    m_factsAction = scene->addAction(tr("Facts"), tr("Ctrl+I"), this, &WorkstationWindow::showSceneFacts);
    m_closeSceneAction =
        scene->addAction(tr("Back to projects"), QKeySequence::Close, this, &WorkstationWindow::closeScene);
    scene->addSeparator();
    scene->addAction(tr("Quit"), tr("Ctrl+Q"), this, &QWidget::close);

    QMenu *window = menuBar()->addMenu(tr("Window"));
    window->addAction(tr("Minimize"), this, &QWidget::showMinimized);
    m_maximizeAction = window->addAction(QString(), this, &WorkstationWindow::toggleMaximized);
}

void WorkstationWindow::createTitleBar()
{
    useResources();
    m_titleBar = new oVIXTitleBar(menuBar(), true, true, true);
    m_titleBar->setLogo(u":/Workstation/Logo"_s, logoSize);
    connect(m_titleBar, &oVIXTitleBar::minimized, this, &QWidget::showMinimized);
    connect(m_titleBar, &oVIXTitleBar::maximized, this, &WorkstationWindow::toggleMaximized);
    connect(m_titleBar, &oVIXTitleBar::closed, this, &QWidget::close);
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
    m_scenePage->setScene(scene);
    m_pages->setCurrentWidget(m_scenePage);
    setWindowTitle(tr("%1 - %2").arg(scene.name, QGuiApplication::applicationDisplayName()));
    endLoading();
}

void WorkstationWindow::reportProblem(const QString &problem)
{
    m_startScreen->showProblem(problem);
    endLoading();
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
    m_closeSceneAction->setEnabled(ready && showsScene());
    m_factsAction->setEnabled(ready && showsScene());
    m_maximizeAction->setText(isMaximized() ? tr("Restore") : tr("Maximize"));
}
