#include "shots/Shots.h"

#include "gallery/GalleryPages.h"
#include "gallery/GalleryWindow.h"
#include "shots/PictureFolder.h"
#include "start/StartScreen.h"
#include "window/ScenePage.h"
#include "window/WorkstationWindow.h"

#include <VelmoFeedbackConsentDialog.h>
#include <VelmoMessageBox.h>
#include <oVIXGuideOverlay.h>

#include <QAbstractAnimation>
#include <QApplication>
#include <QCursor>
#include <QDeadlineTimer>
#include <QDialog>
#include <QDir>
#include <QEventLoop>
#include <QPainter>
#include <QPixmap>
#include <QProcess>
#include <QPushButton>
#include <QSettings>
#include <QTemporaryDir>
#include <QTimer>

#include <atomic>
#include <chrono>
#include <cstdio>
#include <memory>

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

namespace {

constexpr auto longestReading = 60s;
constexpr int longestProcess = 10 * 60 * 1000;
constexpr QPoint nowhere(30000, 30000); // beyond the longest page, which may be longer than the screen

/// Counts the toolkit's warnings while it lives, and passes them on.
class WarningCounter
{
public:
    WarningCounter()
    {
        s_count = 0;
        s_before = qInstallMessageHandler([](QtMsgType type, const QMessageLogContext &context, const QString &text) {
            // What a platform without windows cannot do does not matter to a picture, nor do the three given sheets
            // that the toolkit cannot read: those of the consent dialog's options and of the tag editor's two lists.
            if (text.startsWith("This plugin does not support"_L1)
                || text.startsWith("Could not parse stylesheet of object QRadioButton"_L1)
                || text.startsWith("Could not parse stylesheet of object oVIXDragDropListWidget("_L1))
                return;
            if (type != QtDebugMsg && type != QtInfoMsg)
                ++s_count;
            s_before(type, context, text);
        });
    }
    ~WarningCounter() { qInstallMessageHandler(s_before); }
    Q_DISABLE_COPY_MOVE(WarningCounter)

    int count() const { return s_count; }

private:
    static inline std::atomic_int s_count = 0;
    static inline QtMessageHandler s_before = nullptr;
};

/// Lets everything happen that widgets have put off to the next turns of the event loop.
void settle()
{
    // One turn lays out, the next one what has become visible by that.
    for (int turn = 0; turn < 4; ++turn) {
        QEventLoop loop;
        QTimer::singleShot(0ms, &loop, &QEventLoop::quit);
        loop.exec();
    }
}

QImage pictureOf(QWidget *widget)
{
    settle();
    return widget->grab().toImage();
}

bool waitUntilRead(const StartScreen *screen)
{
    const QDeadlineTimer deadline(longestReading);
    while (screen->isReading() && !deadline.hasExpired())
        QCoreApplication::processEvents(QEventLoop::AllEvents, 50);
    return !screen->isReading();
}

bool waitUntilLoaded(WorkstationWindow *window)
{
    if (!window->isLoading())
        return true;
    QEventLoop loop;
    QObject::connect(window, &WorkstationWindow::loadingFinished, &loop, &QEventLoop::quit);
    QTimer::singleShot(longestReading, &loop, &QEventLoop::quit);
    loop.exec();
    return !window->isLoading();
}

/// The window with its open dialog over it, as on screen.
QImage pictureWithDialog(QWidget *window)
{
    const auto *dialog = window->findChild<QDialog *>(QString(), Qt::FindDirectChildrenOnly);
    QImage picture = pictureOf(window);
    if (dialog) {
        QPainter painter(&picture);
        painter.drawPixmap(dialog->pos() - window->pos(), const_cast<QDialog *>(dialog)->grab());
    }
    return picture;
}

bool waitUntilBaked(const ScenePage *page)
{
    if (!page->bake().isRunning())
        return true;
    QEventLoop loop;
    QObject::connect(page, &ScenePage::bakingChanged, &loop, &QEventLoop::quit);
    QTimer::singleShot(longestReading, &loop, &QEventLoop::quit);
    loop.exec();
    return !page->bake().isRunning();
}

/// The steps of the tour over what the window shows.
bool drawTour(PictureFolder &pictures, WorkstationWindow *window, const QString &name)
{
    window->showTour();
    settle();
    bool good = true;
    for (int step = 1;; ++step) {
        auto *tour = window->findChild<oVIXGuideOverlay *>();
        if (!tour)
            return good;
        for (QAbstractAnimation *transition : tour->findChildren<QAbstractAnimation *>())
            transition->stop();
        tour->setAnimationProgress(1.0F);
        good = pictures.save(pictureOf(window), u"%1 tour %2"_s.arg(name).arg(step)) && good;
        tour->findChild<QPushButton *>(u"nextButton"_s)->click();
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    }
}

bool drawWindow(PictureFolder &pictures, const QString &projectsFolder)
{
    WorkstationWindow window(projectsFolder);
    window.show();
    StartScreen *screen = window.startScreen();
    const QList<ProjectFolder> projects = screen->projects();
    bool good = !projects.isEmpty();
    for (int row = 0; row < int(projects.size()); ++row) {
        screen->selectProject(row);
        if (!waitUntilRead(screen)) {
            std::fprintf(stderr, "%s: reading the scenes takes too long\n", qPrintable(projects[row].path()));
            return false;
        }
        good = pictures.save(pictureOf(&window), u"start "_s + projects[row].name()) && good;
    }

    good = drawTour(pictures, &window, u"start"_s) && good;
    (new VelmoFeedbackConsentDialog(&window))->open();
    good = pictures.save(pictureWithDialog(&window), u"start consent"_s) && good;
    delete window.findChild<QDialog *>(QString(), Qt::FindDirectChildrenOnly);
    window.showAbout();
    good = pictures.save(pictureWithDialog(&window), u"start about"_s) && good;
    delete window.findChild<QDialog *>(QString(), Qt::FindDirectChildrenOnly);

    if (!screen->canOpen()) // a folder without scenes
        return good;
    screen->openSelectedScene();
    if (!waitUntilLoaded(&window) || !window.showsScene()) {
        std::fprintf(stderr, "the selected scene cannot be opened\n");
        return false;
    }
    good = pictures.save(pictureOf(&window), u"scene"_s) && good;
    good = drawTour(pictures, &window, u"scene"_s) && good;
    ScenePage *page = window.scenePage();
    page->toggleBaking();
    if (!waitUntilBaked(page)) {
        std::fprintf(stderr, "baking takes too long\n");
        return false;
    }
    page->goToFrame(page->bake().frameCount() / 6);
    good = pictures.save(pictureOf(&window), u"scene baked"_s) && good;
    window.showSceneFacts();
    good = pictures.save(pictureWithDialog(&window), u"scene facts"_s) && good;
    delete window.findChild<QDialog *>(QString(), Qt::FindDirectChildrenOnly);
    window.showWelcome();
    good = pictures.save(pictureWithDialog(&window), u"welcome"_s) && good;
    delete window.findChild<QDialog *>(QString(), Qt::FindDirectChildrenOnly);

    const auto saveBox = [&](const QString &name) {
        QTimer::singleShot(0ms, &window, [&, name] {
            good = pictures.save(pictureWithDialog(&window), name) && good;
            if (auto *box = window.findChild<VelmoMessageWidget *>())
                box->fnReject(); // also while it holds its buttons back
        });
    };
    saveBox(u"replace bake"_s);
    page->toggleBaking();
    QTimer::singleShot(0ms, &window, [&] {
        good = pictures.save(pictureWithDialog(&window), u"save scene"_s) && good;
        if (auto *box = window.findChild<VelmoMessageWidget *>())
            box->fnOther(); // nobody's files are touched
    });
    window.closeScene();
    saveBox(u"delete scene"_s);
    screen->deleteSelectedScene();
    saveBox(u"rename scene"_s);
    screen->renameSelectedScene();
    return good;
}

bool drawGallery(PictureFolder &pictures)
{
    GalleryWindow window;
    window.show();
    bool good = pictures.save(pictureOf(&window), u"gallery"_s);

    const QList<GalleryPages::Page> pages = GalleryPages::all();
    for (const GalleryPages::Page &page : pages) {
        const std::unique_ptr<QWidget> widget(page.create());
        widget->show();
        settle();
        // The whole page, however tall.
        widget->adjustSize();
        good = pictures.save(pictureOf(widget.get()), page.id) && good;
    }
    return good;
}

} // namespace

int Shots::drawAtAllScales(const QString &folder, const QString &projectsFolder, const QString &platform)
{
    int exitCode = 0;
    for (const QString &scale : {u"1"_s, u"2"_s}) {
        QStringList arguments = {
            u"-platform"_s, platform.isEmpty() ? u"offscreen"_s : platform, u"--scale"_s, scale, u"--shots"_s, folder};
        if (!projectsFolder.isEmpty())
            arguments << projectsFolder;
        QProcess process;
        process.setProcessChannelMode(QProcess::ForwardedChannels);
        process.start(QCoreApplication::applicationFilePath(), arguments);
        const bool ended = process.waitForFinished(longestProcess);
        if (!ended || process.exitStatus() != QProcess::NormalExit || process.exitCode() != 0) {
            std::fprintf(stderr, "Drawing the pictures at scale %s has failed: %s\n", qPrintable(scale),
                         ended ? "see above" : qPrintable(process.errorString()));
            exitCode = 1;
        }
    }
    if (exitCode == 0)
        std::printf("All pictures are in %s\n", qPrintable(QDir::toNativeSeparators(folder)));
    return exitCode;
}

int Shots::draw(const QString &folder, const QString &projectsFolder, double scale)
{
    const WarningCounter warnings;
    const QTemporaryDir settings; // nobody's
    QSettings::setDefaultFormat(QSettings::IniFormat);
    QSettings::setPath(QSettings::IniFormat, QSettings::UserScope, settings.path());
    QApplication::setCursorFlashTime(0);
    QCursor::setPos(nowhere);
    PictureFolder pictures(folder, scale);
    const bool windowDrawn = drawWindow(pictures, projectsFolder);
    const bool galleryDrawn = drawGallery(pictures);
    if (warnings.count() > 0)
        std::fprintf(stderr, "The toolkit has printed %d warnings.\n", warnings.count());
    return windowDrawn && galleryDrawn && warnings.count() == 0 ? 0 : 1;
}
