#include "start/StartScreen.h"

#include "VelmoScenesTable.h"
#include "look/ElidedLabel.h"
#include "look/Sheets.h"
#include "start/HeaderBar.h"
#include "start/SceneQuestions.h"
#include "start/StatusLine.h"

#include <QDir>
#include <QHBoxLayout>
#include <QLabel>
#include <QListWidget>
#include <QPointer>
#include <QPushButton>
#include <QScrollBar>
#include <QStackedWidget>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

constexpr QSize smallestSize(1000, 520);
constexpr int projectsWidth = 260;
constexpr int gap = 16;

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
    layout->setContentsMargins(12, 12, 12, 12);
    layout->setSpacing(12);
    return panel;
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
    panels->setContentsMargins(gap, gap, gap, gap);
    panels->setSpacing(gap);
    panels->addWidget(createProjectsPanel());
    panels->addWidget(createScenesPanel(), 1);

    auto *layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(0);
    layout->addWidget(header);
    layout->addLayout(panels, 1);
    layout->addWidget(m_status);

    connect(m_reader, &SceneReader::sceneRead, this, &StartScreen::showScene);
    connect(m_reader, &SceneReader::finished, this, &StartScreen::finishReading);
    connect(m_table, &VelmoScenesTable::renameRequested, this, &StartScreen::renameScene);
    connect(m_table, &VelmoScenesTable::newScenePressed, this, &StartScreen::addScene);
    connect(m_table, &VelmoScenesTable::selectionChanged, this, &StartScreen::updateOpening);
    connect(m_openButton, &QPushButton::clicked, this, &StartScreen::openSelectedScene);
    connect(m_projectList, &QListWidget::currentRowChanged, this, &StartScreen::openProject);

    listProjects(folder);
}

QList<ProjectFolder> StartScreen::projects() const
{
    return m_projects;
}

void StartScreen::selectProject(int row)
{
    m_projectList->setCurrentRow(row);
}

bool StartScreen::isReading() const
{
    return m_reader->isReading();
}

QSize StartScreen::minimumSizeHint() const
{
    return smallestSize;
}

bool StartScreen::canOpen() const
{
    return !m_table->getSelectedScene().isEmpty();
}

void StartScreen::openSelectedScene()
{
    const SceneFile scene = selectedScene();
    if (!scene.path.isEmpty())
        emit openRequested(scene.path);
}

void StartScreen::renameSelectedScene()
{
    const SceneFile scene = selectedScene();
    const QPointer<StartScreen> self(this);
    const QString newName = scene.path.isEmpty() ? QString() : SceneQuestions::askNewName(scene.name, window());
    if (self && !newName.isEmpty())
        renameScene(scene.name, newName);
}

void StartScreen::cloneSelectedScene()
{
    const SceneFile scene = selectedScene();
    if (!scene.path.isEmpty())
        showAdded(m_project.cloneScene(scene));
}

void StartScreen::deleteSelectedScene()
{
    const SceneFile scene = selectedScene();
    const ProjectFolder project = m_project;
    const QPointer<StartScreen> self(this);
    if (scene.path.isEmpty() || !SceneQuestions::confirmDeleting(scene.name, window()) || !self)
        return;
    const ProjectFolder::Change change = project.deleteScene(scene);
    if (!change.problem.isEmpty()) {
        SceneQuestions::report(tr("Delete scene"), change.problem, window());
        return;
    }
    if (project.path() != m_project.path())
        return;
    m_noteWhenRead = tr("\"%1\" is in the trash.").arg(scene.name);
    m_sceneWhenRead = neighbourOf(scene);
    readScenes();
}

void StartScreen::showProblem(const QString &text)
{
    m_status->showProblem(text);
}

QWidget *StartScreen::createProjectsPanel()
{
    QWidget *panel = createPanel(this);
    panel->setFixedWidth(projectsWidth);
    QLabel *title = panelLabel(u"panelTitle"_s, panel);
    title->setText(tr("Projects"));

    m_projectList = new QListWidget(panel);
    m_projectList->setStyleSheet(Sheets::nameList());
    m_projectList->verticalScrollBar()->setStyleSheet(Sheets::scrollBar());
    m_projectList->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    m_projectList->setAccessibleName(tr("Projects"));

    panel->layout()->addWidget(title);
    panel->layout()->addWidget(m_projectList);
    return panel;
}

QWidget *StartScreen::createScenesPanel()
{
    QWidget *panel = createPanel(this);
    m_scenesTitle = new ElidedLabel(panel);
    m_scenesTitle->setObjectName(u"panelTitle"_s);
    m_table = new VelmoScenesTable(panel);
    m_emptyNote = panelLabel(u"emptyNote"_s, panel);
    m_emptyNote->setAlignment(Qt::AlignCenter);
    m_emptyNote->setWordWrap(true);
    m_emptyNote->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Expanding);

    m_scenesStack = new QStackedWidget(panel);
    m_scenesStack->addWidget(m_emptyNote);
    m_scenesStack->addWidget(m_table);

    m_openButton = new QPushButton(tr("Open scene"), panel);
    m_openButton->setStyleSheet(Sheets::button());
    m_openButton->setDefault(true);
    m_openButton->setEnabled(false);

    auto *layout = static_cast<QVBoxLayout *>(panel->layout());
    layout->addWidget(m_scenesTitle);
    layout->addWidget(m_scenesStack);
    layout->addWidget(m_openButton, 0, Qt::AlignRight);
    return panel;
}

void StartScreen::listProjects(const QString &folder)
{
    m_scenesTitle->setFullText(tr("Scenes"));
    m_projects = ProjectFolder::projectsIn(folder);
    for (const ProjectFolder &project : std::as_const(m_projects)) {
        auto *item = new QListWidgetItem(project.name(), m_projectList);
        item->setToolTip(Qt::convertFromPlainText(QDir::toNativeSeparators(project.path()), Qt::WhiteSpaceNormal));
    }
    if (!m_projects.isEmpty()) {
        selectProject(0);
    } else if (QDir(folder).exists()) {
        m_emptyNote->setText(tr("This folder has no projects. Every folder in it would be one."));
        m_status->showNote(tr("No projects"));
    } else {
        m_emptyNote->setText(tr("There is no folder %1").arg(QDir::toNativeSeparators(folder)));
        m_status->showProblem(tr("The folder of projects is missing."));
    }
}

void StartScreen::openProject(int row)
{
    if (row < 0 || row >= m_projects.size())
        return;
    m_project = m_projects[row];
    m_scenesTitle->setFullText(m_project.name());
    m_scenesStack->setCurrentWidget(m_table);
    m_sceneWhenRead.clear();
    m_noteWhenRead.clear();
    readScenes();
}

void StartScreen::readScenes()
{
    m_scenes.clear();
    m_table->clearScenes();
    updateOpening();
    m_status->showNote(tr("Reading scenes\u2026"));
    m_reader->read(m_project.scenes());
}

void StartScreen::showScene(const SceneFacts &facts)
{
    m_scenes.append(facts);
    const VelmoSceneMetadataParser &metadata = facts.metadata;
    m_table->addScene(facts.file.name, facts.newer, facts.lastModified, metadata.bakeStatus, metadata.actorCount,
                      metadata.vehicleCount, metadata.timeFramerate, metadata.version.toString(), facts.readable);
}

void StartScreen::finishReading()
{
    if (!m_sceneWhenRead.isEmpty()) {
        m_table->setSelectedScene(m_sceneWhenRead);
    } else if (m_table->getSelectedScene().isEmpty()) {
        const auto first = std::find_if(m_scenes.cbegin(), m_scenes.cend(), std::mem_fn(&SceneFacts::readable));
        if (first != m_scenes.cend())
            m_table->setSelectedRow(int(first - m_scenes.cbegin()));
    }
    m_status->showNote(m_noteWhenRead.isEmpty() ? summary() : m_noteWhenRead);
    m_sceneWhenRead.clear();
    m_noteWhenRead.clear();
    emit projectRead();
}

void StartScreen::renameScene(const QString &oldName, const QString &newName)
{
    const auto hasOldName = [&oldName](const SceneFacts &facts) { return facts.file.name == oldName; };
    const auto scene = std::find_if(m_scenes.begin(), m_scenes.end(), hasOldName);
    if (scene == m_scenes.end())
        return;
    const ProjectFolder::Change change = m_project.renameScene(scene->file, newName);
    if (!change.problem.isEmpty()) {
        m_status->showProblem(change.problem);
        return;
    }

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
    m_table->renameScene(oldName, newName);
    m_status->showNote(note);
}

void StartScreen::addScene()
{
    showAdded(m_project.addScene());
}

void StartScreen::showAdded(const ProjectFolder::Change &change)
{
    if (!change.problem.isEmpty()) {
        m_status->showProblem(change.problem);
        return;
    }
    m_sceneWhenRead = change.scene.name;
    m_noteWhenRead = tr("\"%1\" has been added.").arg(change.scene.name);
    m_reader->readAlso(change.scene);
}

SceneFile StartScreen::selectedScene() const
{
    const int row = m_table->getSelectedRow();
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

void StartScreen::updateOpening()
{
    m_openButton->setEnabled(canOpen());
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
