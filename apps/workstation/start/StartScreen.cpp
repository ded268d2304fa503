#include "start/StartScreen.h"

#include "VelmoProjectItem.h"
#include "VelmoProjectsTable.h"
#include "look/ElidedLabel.h"
#include "look/Sheets.h"
#include "start/HeaderBar.h"
#include "start/SceneQuestions.h"
#include "start/ScenesPanel.h"
#include "start/StatusLine.h"

#include <QDir>
#include <QFileInfo>
#include <QHBoxLayout>
#include <QLabel>
#include <QPointer>
#include <QStackedWidget>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

constexpr QSize smallestSize(1100, 560);
constexpr int panelGap = 16;
constexpr int panelMargin = 20; // that of the panel of scenes
/// How the panels share what a wide window has.
constexpr int projectsStretch = 1;
constexpr int scenesStretch = 2;

QLabel *panelLabel(const QString &objectName, QWidget *parent)
{
    auto *label = new QLabel(parent);
    label->setObjectName(objectName);
    label->setTextFormat(Qt::PlainText);
    return label;
}

QWidget *createPanel(QWidget *parent)
{
    auto *panel = new QWidget(parent);
    panel->setObjectName(u"panel"_s);
    panel->setAttribute(Qt::WA_StyledBackground);
    auto *layout = new QVBoxLayout(panel);
    layout->setContentsMargins(0, panelMargin, 0, 0);
    layout->setSpacing(0);
    return panel;
}

void addTitle(QWidget *title, QWidget *panel)
{
    auto *row = new QHBoxLayout;
    row->setContentsMargins(panelMargin, 0, panelMargin, 0);
    row->addWidget(title);
    static_cast<QVBoxLayout *>(panel->layout())->addLayout(row);
}

} // namespace

StartScreen::StartScreen(const QString &folder, QWidget *parent)
    : QWidget(parent), m_reader(new SceneReader(this)), m_status(new StatusLine(this))
{
    setObjectName(u"window"_s);
    setAttribute(Qt::WA_StyledBackground);
    setStyleSheet(Sheets::window());

    auto *header = new HeaderBar(this);
    header->setSubtitle(QDir::toNativeSeparators(folder));

    auto *panels = new QHBoxLayout;
    panels->setContentsMargins(panelGap, panelGap, panelGap, panelGap);
    panels->setSpacing(panelGap);
    panels->addWidget(createProjectsPanel(), projectsStretch);
    panels->addWidget(createScenesPanel(), scenesStretch);

    auto *layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(0);
    layout->addWidget(header);
    layout->addLayout(panels, 1);
    layout->addWidget(m_status);

    connect(m_reader, &SceneReader::sceneRead, this, &StartScreen::showScene);
    connect(m_reader, &SceneReader::finished, this, &StartScreen::finishReading);
    connect(m_scenesPanel, &VelmoProjectScenesWidget::accept, this, &StartScreen::openSelectedScene);
    connect(m_scenesPanel, &VelmoProjectScenesWidget::reject, this, [this] { m_scenesPanel->setSelectedRow(-1); });
    connect(m_scenesPanel, &VelmoProjectScenesWidget::sceneSelectionChanged, this, &StartScreen::updateSelection);
    connect(m_scenesPanel, &VelmoProjectScenesWidget::deleteScenePressed, this, &StartScreen::deleteSelectedScene,
            Qt::QueuedConnection); // its question must not be up while the button
                                   // is at work
    connect(m_scenesPanel, &VelmoProjectScenesWidget::cloneScenePressed, this, &StartScreen::cloneSelectedScene);
    connect(m_scenesPanel, &VelmoProjectScenesWidget::newScenePressed, this, &StartScreen::addScene);
    connect(m_scenesPanel, &VelmoProjectScenesWidget::renameTriggered, this, &StartScreen::renameScene);
    connect(m_projectsTable, &VelmoProjectsTable::selectionChanged, this, &StartScreen::openSelectedProject);

    listProjects(folder);
}

QList<ProjectFolder> StartScreen::projects() const
{
    return m_projects;
}

void StartScreen::selectProject(int row)
{
    if (row >= 0 && row < m_projects.size())
        m_projectsTable->setSelectedProject(m_projects[row].path());
}

bool StartScreen::isReading() const
{
    return m_reader->isReading() || m_scenesPanel->isDrawing();
}

void StartScreen::refresh()
{
    if (m_project.path().isEmpty())
        return;
    m_sceneWhenRead = selectedScene().name;
    showProjectChanged();
    readScenes();
}

QSize StartScreen::minimumSizeHint() const
{
    return smallestSize;
}

bool StartScreen::canOpen() const
{
    return m_scenesPanel->getSelectedRow() >= 0;
}

bool StartScreen::canAdd() const
{
    return !m_project.path().isEmpty();
}

void StartScreen::openSelectedScene()
{
    m_scenesPanel->finishEditing(); // a name that is being edited is not the file's
    const SceneFile scene = selectedScene();
    if (!scene.path.isEmpty())
        emit openRequested(scene.path);
}

void StartScreen::renameSelectedScene()
{
    m_scenesPanel->finishEditing(); // it would rename when the box takes the focus
    const SceneFile scene = selectedScene();
    if (scene.path.isEmpty())
        return;
    const QString project = m_project.path();
    const QPointer<StartScreen> self(this);
    const std::optional<QString> newName = SceneQuestions::askNewName(scene.name, window());
    if (self && newName && project == m_project.path())
        renameScene(scene.name, *newName);
}

void StartScreen::cloneSelectedScene()
{
    m_scenesPanel->finishEditing();
    const SceneFile scene = selectedScene();
    if (!scene.path.isEmpty())
        showAdded(m_project.cloneScene(scene), tr("Clone scene"));
}

void StartScreen::deleteSelectedScene()
{
    m_scenesPanel->finishEditing();
    const SceneFile scene = selectedScene();
    const ProjectFolder project = m_project;
    const QPointer<StartScreen> self(this);
    if (scene.path.isEmpty() || !SceneQuestions::confirmDeleting(scene.name, window()) || !self)
        return;
    QString note = tr("\"%1\" is in the trash.").arg(scene.name);
    ProjectFolder::Change change = project.deleteScene(scene);
    if (!self) // some systems let events in while they move a file to the trash
        return;
    if (!change.problem.isEmpty() && QFileInfo(scene.path).isFile()) {
        if (!SceneQuestions::confirmRemoving(change.problem, window()) || !self)
            return;
        note = tr("\"%1\" has been deleted.").arg(scene.name);
        change = project.removeScene(scene);
    }
    if (!change.problem.isEmpty()) {
        reportFailure(tr("Delete scene"), change);
        return;
    }
    if (project.path() != m_project.path())
        return;
    m_noteWhenRead = note;
    m_sceneWhenRead = neighbourOf(scene);
    showProjectChanged();
    readScenes();
}

void StartScreen::showProblem(const QString &text)
{
    m_status->showProblem(text);
}

QWidget *StartScreen::createProjectsPanel()
{
    QWidget *panel = createPanel(this);
    QLabel *title = panelLabel(u"panelTitle"_s, panel);
    title->setText(tr("Projects"));
    addTitle(title, panel);

    m_projectsTable = new VelmoProjectsTable(panel);
    auto *frame = new QVBoxLayout;
    frame->setContentsMargins(panelMargin, panelMargin, panelMargin, panelMargin);
    frame->addWidget(m_projectsTable);
    static_cast<QVBoxLayout *>(panel->layout())->addLayout(frame);
    return panel;
}

QWidget *StartScreen::createScenesPanel()
{
    QWidget *panel = createPanel(this);
    m_scenesTitle = new ElidedLabel(panel);
    m_scenesTitle->setObjectName(u"panelTitle"_s);
    addTitle(m_scenesTitle, panel);
    m_scenesStack = new QStackedWidget(panel);
    m_scenesPanel = new ScenesPanel(m_scenesStack);
    m_emptyNote = panelLabel(u"emptyNote"_s, m_scenesStack);
    m_emptyNote->setAlignment(Qt::AlignCenter);
    m_emptyNote->setWordWrap(true);
    m_emptyNote->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Expanding);
    m_scenesStack->addWidget(m_emptyNote);
    m_scenesStack->addWidget(m_scenesPanel);
    panel->layout()->addWidget(m_scenesStack);
    return panel;
}

void StartScreen::listProjects(const QString &folder)
{
    m_scenesTitle->setFullText(tr("Scenes"));
    m_projects = ProjectFolder::projectsIn(folder);
    for (const ProjectFolder &project : std::as_const(m_projects))
        m_projectsTable->addProject(project.path(), project.lastModified().toString());
    if (!m_projects.isEmpty()) {
        m_projectsTable->setDefaultSelection();
    } else if (QDir(folder).exists() && !QDir(folder).isReadable()) {
        m_emptyNote->setText(tr("The folder %1 cannot be read").arg(QDir::toNativeSeparators(folder)));
        m_status->showProblem(tr("The folder of projects cannot be read."));
    } else if (QDir(folder).exists()) {
        m_emptyNote->setText(tr("This folder has no projects. Every folder in it would be one."));
        m_status->showNote(tr("No projects"));
    } else {
        m_emptyNote->setText(tr("There is no folder %1").arg(QDir::toNativeSeparators(folder)));
        m_status->showProblem(tr("The folder of projects is missing."));
    }
}

void StartScreen::openSelectedProject()
{
    const QString path = m_projectsTable->getSelectedProject();
    if (path.isEmpty() || path == m_project.path())
        return;
    m_project = ProjectFolder(path);
    m_scenesTitle->setFullText(m_project.name());
    m_scenesStack->setCurrentWidget(m_scenesPanel);
    m_sceneWhenRead.clear();
    m_noteWhenRead.clear();
    readScenes();
}

void StartScreen::readScenes()
{
    m_scenes.clear();
    m_scenesPanel->clearScenes();
    updateSelection();
    m_status->showNote(tr("Reading scenes\u2026"));
    m_reader->read(m_project.scenes());
}

void StartScreen::showScene(const SceneFacts &facts)
{
    m_scenes.append(facts);
    m_scenesPanel->addScene(facts.file.name, facts.metadata, facts.lastModified, facts.readable);
}

void StartScreen::finishReading()
{
    if (!m_sceneWhenRead.isEmpty())
        m_scenesPanel->setSceneSelected(m_sceneWhenRead);
    if (!canOpen()) {
        const auto first = std::find_if(m_scenes.cbegin(), m_scenes.cend(), std::mem_fn(&SceneFacts::readable));
        if (first != m_scenes.cend())
            m_scenesPanel->setSelectedRow(int(first - m_scenes.cbegin()));
    }
    if (const QString problem = m_project.problem(); !problem.isEmpty())
        m_status->showProblem(problem);
    else
        m_status->showNote(m_noteWhenRead.isEmpty() ? summary() : m_noteWhenRead);
    m_sceneWhenRead.clear();
    m_noteWhenRead.clear();
    emit projectRead();
}

void StartScreen::renameScene(const QString &oldName, const QString &newName)
{
    const auto hasOldName = [&oldName](const SceneFacts &facts) { return facts.file.name == oldName; };
    const auto scene = std::find_if(m_scenes.begin(), m_scenes.end(), hasOldName);
    if (scene == m_scenes.end()) {
        reportFailure(tr("Rename scene"), {{}, tr("There is no file of \"%1\" any more.").arg(oldName)});
        return;
    }
    const ProjectFolder::Change change = m_project.renameScene(scene->file, newName);
    if (!change.problem.isEmpty()) {
        reportFailure(tr("Rename scene"), change);
        return;
    }
    showProjectChanged();

    const QString note = tr("\"%1\" is now called \"%2\".").arg(oldName, newName);
    // The table finds the first of several names that differ in case only, which need not be this one.
    const auto looksTheSame = [&oldName](const SceneFacts &facts) {
        return facts.file.name.compare(oldName, Qt::CaseInsensitive) == 0;
    };
    if (std::count_if(m_scenes.cbegin(), m_scenes.cend(), looksTheSame) > 1) {
        m_sceneWhenRead = newName;
        m_noteWhenRead = note;
        readScenes();
        return;
    }
    scene->file = change.scene;
    m_scenesPanel->renameScene(oldName, newName);
    updateSelection();
    m_status->showNote(note);
}

void StartScreen::addScene()
{
    if (!canAdd())
        return;
    m_scenesPanel->finishEditing();
    showAdded(m_project.addScene(), tr("New scene"));
}

void StartScreen::showAdded(const ProjectFolder::Change &change, const QString &problemTitle)
{
    if (!change.problem.isEmpty()) {
        reportFailure(problemTitle, change);
        return;
    }
    m_sceneWhenRead = change.scene.name;
    m_noteWhenRead = tr("\"%1\" has been added.").arg(change.scene.name);
    showProjectChanged();
    m_reader->readAlso(change.scene);
}

void StartScreen::reportFailure(const QString &title, const ProjectFolder::Change &change)
{
    const auto report = [this, title, problem = change.problem] { SceneQuestions::report(title, problem, window()); };
    QMetaObject::invokeMethod(this, report, Qt::QueuedConnection);
    const auto isIt = [&change](const SceneFacts &facts) { return facts.file.path == change.scene.path; };
    if (std::any_of(m_scenes.cbegin(), m_scenes.cend(), isIt) && !QFileInfo(change.scene.path).isFile()) {
        m_sceneWhenRead = neighbourOf(change.scene);
        readScenes();
    }
}

void StartScreen::showProjectChanged()
{
    const QList<VelmoProjectItem *> rows = m_projectsTable->findChildren<VelmoProjectItem *>();
    for (VelmoProjectItem *row : rows) {
        if (row->getPath() == m_project.path())
            row->set(m_project.path(), m_project.lastModified().toString());
    }
}

SceneFile StartScreen::selectedScene() const
{
    const int row = m_scenesPanel->getSelectedRow();
    return row >= 0 && row < m_scenes.size() ? m_scenes[row].file : SceneFile();
}

QString StartScreen::neighbourOf(const SceneFile &scene) const
{
    QString before;
    bool passed = false;
    for (const SceneFacts &facts : m_scenes) {
        if (facts.file.path == scene.path)
            passed = true;
        else if (facts.readable && passed)
            return facts.file.name;
        else if (facts.readable)
            before = facts.file.name;
    }
    return before;
}

void StartScreen::updateSelection()
{
    m_scenesPanel->setYesNoButtonEnabled(canOpen());
    m_scenesPanel->setSceneButtonsEnabled(canOpen());
    m_scenesPanel->showPreviewOf(selectedScene().path);
    emit selectionChanged();
}

QString StartScreen::summary() const
{
    const auto count = m_scenes.size();
    const auto broken =
        std::count_if(m_scenes.cbegin(), m_scenes.cend(), std::not_fn(std::mem_fn(&SceneFacts::readable)));
    const QString scenes = count == 0 ? tr("No scenes yet: the plus adds one")
        : count == 1                  ? tr("1 scene")
                                      : tr("%1 scenes").arg(count);
    return broken == 0 ? scenes : tr("%1, %2 could not be read").arg(scenes).arg(broken);
}
