#include "CommandLine.h"
#include "gallery/GalleryPages.h"
#include "gallery/GalleryWindow.h"
#include "look/ApplicationLook.h"
#include "look/Wording.h"
#include "oVIXStyle.h"
#include "scenes/ShippedProjects.h"
#include "shots/Shots.h"
#include "window/WorkstationWindow.h"

#include <QApplication>
#include <QDir>
#include <QSettings>
#include <QTimer>

#include <algorithm>
#include <cstdio>
#include <memory>

using namespace Qt::StringLiterals;

namespace {

constexpr int misused = 2;

/// An application that brings its plug-ins along uses them and no others; one in a build folder takes the system's.
void useShippedPlugins()
{
    const QStringList pathsBefore = QCoreApplication::libraryPaths();
    const QString folderBefore = QDir::currentPath();
    oVIXStyle::readQtPaths();
    const QStringList paths = QCoreApplication::libraryPaths();
    const bool shipped = std::any_of(paths.cbegin(), paths.cend(),
                                     [](const QString &path) { return QDir(path).exists(u"platforms"_s); });
    if (!shipped) {
        QCoreApplication::setLibraryPaths(pathsBefore);
        QDir::setCurrent(folderBefore);
    }
}

/// The scale has to be set before there is an application, and so before the command line can be parsed.
void applyScale(const QStringList &arguments)
{
    const qsizetype option = arguments.indexOf(u"--scale"_s);
    if (option > 0 && option + 1 < arguments.size())
        qputenv("QT_SCALE_FACTOR", arguments[option + 1].toLatin1());
}

/// Help, a refusal, and starting the processes that draw pictures have to work without a display.
bool needsDisplay(const CommandLine &line)
{
    switch (line.task) {
    case CommandLine::Task::StartScreen:
    case CommandLine::Task::Gallery:
        return true;
    case CommandLine::Task::Shots:
        return line.shotsScale > 0;
    case CommandLine::Task::Help:
    case CommandLine::Task::Version:
    case CommandLine::Task::Refuse:
        break;
    }
    return false;
}

int refuse(const QString &message)
{
    std::fprintf(stderr, "%s\n", qPrintable(message));
    return misused;
}

int run(std::unique_ptr<QWidget> window)
{
    window->show();
    return QApplication::exec();
}

int openGallery(const QString &pageName)
{
    const int page = pageName.isEmpty() ? 0 : GalleryPages::find(pageName);
    if (page < 0) {
        QStringList ids;
        for (const GalleryPages::Page &known : GalleryPages::all())
            ids << known.id;
        return refuse(CommandLine::tr("There is no page \"%1\". The pages are: %2.").arg(pageName, ids.join(u", ")));
    }
    auto window = std::make_unique<GalleryWindow>();
    window->openPage(page);
    return run(std::move(window));
}

int drawShots(const CommandLine &line, const QString &projectsFolder)
{
    if (!QDir(projectsFolder).exists())
        return refuse(CommandLine::tr("There is no folder of projects %1.").arg(projectsFolder));
    if (!QDir().mkpath(line.shotsFolder))
        return refuse(CommandLine::tr("The folder %1 cannot be made.").arg(line.shotsFolder));
    return line.shotsScale > 0 ? Shots::draw(line.shotsFolder, projectsFolder, line.shotsScale)
                               : Shots::drawAtAllScales(line.shotsFolder, projectsFolder, line.shotsPlatform);
}

} // namespace

int main(int argc, char **argv)
{
    QStringList rawArguments;
    for (int i = 0; i < argc; ++i)
        rawArguments << QString::fromLocal8Bit(argv[i]);
    const QString currentFolder = QDir::currentPath();
    QCoreApplication::setOrganizationName(u"Velmo"_s);
    QCoreApplication::setApplicationName(u"workstation"_s);
    QCoreApplication::setApplicationVersion(QStringLiteral(WORKSTATION_RELEASE));

    useShippedPlugins();
    applyScale(rawArguments);
    QGuiApplication::setHighDpiScaleFactorRoundingPolicy(Qt::HighDpiScaleFactorRoundingPolicy::PassThrough);
    std::unique_ptr<QCoreApplication> application;
    if (needsDisplay(CommandLine::parse(rawArguments, currentFolder))) {
        application = std::make_unique<QApplication>(argc, argv);
        QGuiApplication::setApplicationDisplayName(CommandLine::tr("Velmo Workstation"));
        ApplicationLook::install();
        if (!Wording::install())
            std::fprintf(stderr, "The wording of some texts is missing.\n");
        if (const QString problem = ApplicationLook::problem(); !problem.isEmpty())
            std::fprintf(stderr, "%s\n", qPrintable(problem));
    } else {
        application = std::make_unique<QCoreApplication>(argc, argv);
    }

    const CommandLine line = CommandLine::parse(QCoreApplication::arguments(), currentFolder);
    const QString projectsFolder = line.projectsFolder.isEmpty() ? ShippedProjects::folder() : line.projectsFolder;
    switch (line.task) {
    case CommandLine::Task::StartScreen: {
        QSettings settings;
        auto window = std::make_unique<WorkstationWindow>(projectsFolder, &settings);
        QTimer::singleShot(0, window.get(), &WorkstationWindow::beginOnboarding); // over the window on screen
        return run(std::move(window));
    }
    case CommandLine::Task::Gallery:
        return openGallery(line.galleryPage);
    case CommandLine::Task::Shots:
        return drawShots(line, projectsFolder);
    case CommandLine::Task::Help:
        std::printf("%s", qPrintable(line.message));
        return 0;
    case CommandLine::Task::Version:
        std::printf("%s\n", qPrintable(QCoreApplication::applicationVersion()));
        return 0;
    case CommandLine::Task::Refuse:
        break;
    }
    return refuse(line.message);
}
