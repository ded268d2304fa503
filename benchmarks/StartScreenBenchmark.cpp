// What the start screen costs with 200 projects and 1,000 scenes in files of 100 KB: from nothing until all is on
// screen and a click has selected another scene.

#include "Limited.h"
#include "RowLists.h"
#include "VelmoSceneItem.h"
#include "start/StartScreen.h"

#include <QDir>
#include <QEventLoop>
#include <QFile>
#include <QHBoxLayout>
#include <QTemporaryDir>
#include <QTreeWidget>

#include <filesystem>

using namespace Qt::StringLiterals;

namespace {

constexpr int projectCount = 200;
constexpr int sceneCount = 1000;
constexpr int clickedScene = 5; // near the top, where it shows
constexpr qsizetype fileSize = 100 * 1024;

/// The projects on disk. The scenes are in the first one.
class Projects
{
public:
    Projects()
    {
        const QDir folder(m_folder.path());
        for (int i = 0; i < projectCount; ++i)
            folder.mkdir(u"Project %1"_s.arg(i, 3, 10, '0'_L1));
        const QString first = scenePath(0);
        QFile file(first);
        QByteArray content = "<VelmoSerializer>\n<scenemetadata version=\"2.0.0\" time-fps=\"00:02:30 | 25\""
                             " bakestatus=\"Baked\" actorcount=\"1200\" vehiclescount=\"4\"/>\n<actors>\n";
        while (content.size() < fileSize)
            content += "<actor name=\"A\" type=\"adult\"><position x=\"1\" y=\"2\" heading=\"90\"/></actor>\n";
        content += "</actors>\n</VelmoSerializer>\n";
        if (!file.open(QIODevice::WriteOnly) || file.write(content) != content.size())
            qFatal("The scenes cannot be written.");
        file.close();
        for (int i = 1; i < sceneCount; ++i) // without needing 100 MB
            std::filesystem::create_hard_link(first.toStdU16String(), scenePath(i).toStdU16String());
    }

    QString path() const { return m_folder.path(); }

    static const Projects &instance()
    {
        static const Projects projects;
        return projects;
    }

private:
    QString scenePath(int number) const
    {
        return m_folder.filePath(u"Project 000/Scene %1.vscene"_s.arg(number, 4, 10, '0'_L1));
    }

    QTemporaryDir m_folder;
};

void click(QWidget *widget, QPoint place)
{
    QTest::mouseClick(widget, Qt::LeftButton, {}, place);
    RowLists::settle();
}

void startScreen(benchmark::State &state)
{
    const QString folder = Projects::instance().path();
    for (auto _ : state) {
        auto screen = std::make_unique<StartScreen>(folder);
        RowLists::show(*screen);
        QEventLoop reading;
        QObject::connect(screen.get(), &StartScreen::projectRead, &reading, &QEventLoop::quit);
        if (screen->isReading())
            reading.exec();
        RowLists::settle();
        QWidget *row = screen->findChildren<VelmoSceneItem *>().at(clickedScene);
        click(row->findChild<QWidget *>(u"nameLabel"_s), QPoint(5, 5));

        state.PauseTiming();
        if (!static_cast<VelmoSceneItem *>(row)->isSelected())
            state.SkipWithError("The click has selected nothing.");
        screen.reset();
        state.ResumeTiming();
    }
}

/// The same rows in plain trees, filled at once after all files have been read.
void plainTrees(benchmark::State &state)
{
    const QString folder = Projects::instance().path();
    for (auto _ : state) {
        auto window = std::make_unique<QWidget>();
        auto *layout = new QHBoxLayout(window.get());
        auto *projects = new QTreeWidget;
        auto *scenes = new QTreeWidget;
        projects->setColumnCount(2);
        scenes->setColumnCount(7);
        layout->addWidget(projects);
        layout->addWidget(scenes);
        const QList<ProjectFolder> found = ProjectFolder::projectsIn(folder);
        for (const ProjectFolder &project : found)
            new QTreeWidgetItem(projects, {project.name(), project.lastModified().toString()});
        for (const SceneFile &file : found.first().scenes()) {
            const SceneFacts facts = SceneFacts::of(file);
            new QTreeWidgetItem(scenes,
                                {file.name, facts.lastModified.toString(), facts.metadata.bakeStatus,
                                 facts.metadata.actorCount, facts.metadata.vehicleCount, facts.metadata.timeFramerate,
                                 facts.metadata.version.toString()});
        }
        RowLists::show(*window);
        click(scenes->viewport(), scenes->visualItemRect(scenes->topLevelItem(clickedScene)).center());

        state.PauseTiming();
        window.reset();
        state.ResumeTiming();
    }
}

} // namespace

BENCHMARK(limited<startScreen, 200>)
    ->Name("start_screen_200_1000/ours")
    ->Iterations(1)
    ->Unit(benchmark::kMillisecond)
    ->UseRealTime(); // two threads are at work
BENCHMARK(plainTrees)->Name("start_screen_200_1000/plain")->Iterations(1)->Unit(benchmark::kMillisecond)->UseRealTime();
