#include "monkey/Monkey.h"
#include "monkey/LastWords.h"
#include "monkey/Senders.h"
#include "support/OwnSettings.h"
#include "support/TestCase.h"

#include "gallery/GalleryPages.h"
#include "look/ApplicationLook.h"
#include "look/Wording.h"
#include "scenes/ShippedProjects.h"
#include "start/StartScreen.h"
#include "window/ScenePage.h"
#include "window/WorkstationWindow.h"

#include <QApplication>
#include <QDesktopServices>
#include <QDir>
#include <QDirIterator>
#include <QOperatingSystemVersion>
#include <QScreen>
#include <QScrollArea>
#include <QSettings>
#include <QTemporaryDir>
#include <QTest>

#include <cstdio>

using namespace Qt::StringLiterals;

namespace {

/// What the command line asks for besides what every test knows.
struct Options
{
    quint32 seed = 1;
    int events = 20000; // of all rows together
    int share = 1; // of the rows, from 1
    int shares = 1;
};
Options options;

constexpr auto workstation = "workstation"_L1; // the row of the window

Monkey *playing = nullptr;
QtMessageHandler handlerBefore = nullptr;

/// A warning ends the walk, so that it can be seen what has led to it.
void hearWarnings(QtMsgType type, const QMessageLogContext &context, const QString &text)
{
    // What happens all the time: what the platform cannot do, and the given sheets of the consent dialog's options and
    // of the tag editor's lists, which cannot be read.
    if (type == QtDebugMsg || type == QtInfoMsg || text.startsWith("This plugin does not support"_L1)
        || text.startsWith("Could not parse stylesheet of object QRadioButton("_L1)
        || text.startsWith("Could not parse stylesheet of object oVIXDragDropListWidget("_L1))
        return;
    if (playing)
        playing->stop(u"warning: "_s + text);
    handlerBefore(type, context, text);
}

void copyFolder(const QString &from, const QString &to)
{
    for (QDirIterator files(from, QDir::Files, QDirIterator::Subdirectories); files.hasNext();) {
        const QString file = files.next();
        const QString copy = to + file.mid(from.size());
        QDir().mkpath(QFileInfo(copy).path());
        QFile::copy(file, copy);
    }
}

Monkey::Rules rulesFor(const QString &row)
{
    Monkey::Rules rules;
    for (const Senders::Sender &sender : Senders::all()) {
        const bool atOnce = std::all_of(sender.causes.cbegin(), sender.causes.cend(), [](const Senders::Cause &cause) {
            return cause.deletion == Senders::Deletion::AtOnce;
        });
        rules.diesOfSignals.insert(QString::fromLatin1(sender.className), atOnce);
    }
    rules.deletesParts = row != workstation && row != u"overlays"_s; // which keep some of theirs
    if (row == workstation) {
        rules.wholes = {u"StartScreen"_s, u"ScenePage"_s, u"CrowdEditor"_s, u"panel"_s};
        rules.mortals = {u"oVIXDialog"_s, u"oVIXGuideOverlay"_s};
    }
    return rules;
}

} // namespace

class MonkeyTest : public TestCase
{
    Q_OBJECT

public slots:
    /// What would open a browser.
    void openNothing(const QUrl &) { }

private slots:
    void initTestCase()
    {
        std::printf("Replay with --seed %u --events %d --share %d/%d\n", options.seed, options.events, options.share,
                    options.shares);
        for (const QScreen *screen : QGuiApplication::screens())
            std::printf("Screen of density %g\n", screen->devicePixelRatio());
        QCoreApplication::setOrganizationName(u"Test"_s);
        keepSettingsIn(m_folder.path());
        // The trash is beside the user's files.
        qputenv("HOME", QFile::encodeName(m_folder.path()));
        qputenv("XDG_DATA_HOME", QFile::encodeName(m_folder.path()));
        for (const QString &scheme : schemes())
            QDesktopServices::setUrlHandler(scheme, this, "openNothing");
        ApplicationLook::install();
        QVERIFY(Wording::install());
        handlerBefore = qInstallMessageHandler(hearWarnings);
        LastWords::install([] { return playing ? playing->lastEvents() : QStringList(); });
    }
    void cleanupTestCase()
    {
        qInstallMessageHandler(handlerBefore);
        for (const QString &scheme : schemes())
            QDesktopServices::unsetUrlHandler(scheme);
    }

    void nothingBreaks_data()
    {
        QTest::addColumn<int>("number");
        QTest::addColumn<int>("events");
        QStringList names{QString(workstation)};
        for (const GalleryPages::Page &page : GalleryPages::all())
            names << page.id;
        for (int i = options.share - 1; i < int(names.size()); i += options.shares)
            QTest::newRow(qPrintable(names[i])) << i << eventsFor(names[i], int(names.size())) + 1;
    }
    void nothingBreaks()
    {
        QFETCH(int, number);
        QFETCH(int, events);
        const QString row = QString::fromLatin1(QTest::currentDataTag());
        if (number == 0 && QOperatingSystemVersion::currentType() == QOperatingSystemVersion::Windows)
            QSKIP("There is one trash for everything.");

        Monkey monkey(options.seed + quint32(number) * 7919, rulesFor(row));
        playing = &monkey;
        const QString flaw = monkey.play(number == 0 ? [this] { return createWindow(); }
                                                     : Monkey::Create([number] { return createPage(number - 1); }),
                                         events);
        playing = nullptr;
        if (flaw.isEmpty() && !QTest::currentTestFailed())
            return;
        for (const QString &event : monkey.lastEvents())
            std::printf("  %s\n", qPrintable(event));
        QVERIFY2(flaw.isEmpty(), qPrintable(flaw));
    }

private:
    /// The window, which has more to it than a page, gets a tenth. To make a page of a thousand rows takes as long as
    /// hundreds of events.
    static int eventsFor(const QString &row, int rows)
    {
        const int forWindow = options.events / 10;
        if (row == workstation)
            return forWindow;
        const QStringList costly{u"project-list"_s, u"scene-list"_s, u"project-scenes"_s};
        const int events = (options.events - forWindow) / (rows - 1 - int(costly.size()));
        return costly.contains(row) ? events / 8 : events;
    }

    static QStringList schemes() { return {u"http"_s, u"https"_s, u"file"_s}; }

    static QWidget *createPage(int page)
    {
        auto *area = new QScrollArea;
        area->setWidgetResizable(true);
        area->resize(1200, 760);
        area->setWidget(GalleryPages::all()[page].create());
        return area;
    }

    /// The window with copies of the shipped projects: as it starts the first time, or with a scene that is baked.
    QWidget *createWindow()
    {
        m_projects = std::make_unique<QTemporaryDir>();
        copyFolder(ShippedProjects::folder(), m_projects->path());
        m_settings = std::make_unique<QSettings>(m_folder.filePath(u"window.ini"_s), QSettings::IniFormat);
        auto *window = new WorkstationWindow(m_projects->path(), m_settings.get());
        m_opensScene = !m_opensScene;
        if (!m_opensScene) {
            QTimer::singleShot(0, window, &WorkstationWindow::beginOnboarding);
            return window;
        }
        const auto bake = [window] {
            if (window->showsScene())
                window->scenePage()->toggleBaking();
        };
        connect(window, &WorkstationWindow::loadingFinished, window, bake, Qt::SingleShotConnection);
        window->openScene(window->startScreen()->projects().constFirst().scenes().constFirst().path);
        return window;
    }

    QTemporaryDir m_folder;
    std::unique_ptr<QTemporaryDir> m_projects;
    std::unique_ptr<QSettings> m_settings;
    bool m_opensScene = false;
};

/// Takes an option and its value out of the arguments; what other options there are is for the test library.
static QByteArray takeOption(const char *name, int &argc, char **argv)
{
    for (int i = 1; i + 1 < argc; ++i) {
        if (qstrcmp(argv[i], name) != 0)
            continue;
        const QByteArray value = argv[i + 1];
        std::copy(argv + i + 2, argv + argc + 1, argv + i);
        argc -= 2;
        return value;
    }
    return {};
}

int main(int argc, char **argv)
{
    if (const QByteArray seed = takeOption("--seed", argc, argv); !seed.isEmpty())
        options.seed = seed.toUInt();
    if (const QByteArray events = takeOption("--events", argc, argv); !events.isEmpty())
        options.events = events.toInt();
    if (const QByteArrayList share = takeOption("--share", argc, argv).split('/'); share.size() == 2) {
        options.share = std::max(1, share[0].toInt());
        options.shares = std::max(1, share[1].toInt());
    }
    return TestCase::run<MonkeyTest>(argc, argv);
}

#include "MonkeyTest.moc"
