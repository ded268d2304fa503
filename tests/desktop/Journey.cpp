#include "desktop/Journey.h"

#include "desktop/RealInput.h"
#include "support/OwnSettings.h"

#include "VelmoProjectItem.h"
#include "VelmoSceneItem.h"
#include "look/ApplicationLook.h"
#include "look/Wording.h"
#include "scenes/ShippedProjects.h"
#include "start/StartScreen.h"
#include "window/ScenePage.h"
#include "window/WorkstationWindow.h"

#include <QAccessible>
#include <QDirIterator>
#include <QMenuBar>
#include <QPointer>
#include <QScopeGuard>
#include <QScreen>
#include <QSettings>
#include <QTest>
#include <QTimer>

using namespace Qt::StringLiterals;

namespace {

constexpr int patience = 20000; // milliseconds

void copyFolder(const QString &from, const QString &to)
{
    QDirIterator files(from, QDir::Files, QDirIterator::Subdirectories);
    while (files.hasNext()) {
        const QString file = files.next();
        const QString copy = QDir(to).filePath(QDir(from).relativeFilePath(file));
        if (!QDir().mkpath(QFileInfo(copy).path()) || !QFile::copy(file, copy))
            qFatal("cannot copy %s", qPrintable(file));
    }
}

QAction *actionOf(const QWidget *menu, const QString &text)
{
    const QList<QAction *> actions = menu->actions();
    const auto found = std::find_if(actions.cbegin(), actions.cend(),
                                    [&text](const QAction *action) { return action->text() == text; });
    if (found == actions.cend() || !(*found)->isEnabled())
        qFatal("there is no \"%s\" to choose", qPrintable(text));
    return *found;
}

template <class Menu> void clickIn(const Menu *menu, const QString &text)
{
    RealInput::click(menu->mapToGlobal(menu->actionGeometry(actionOf(menu, text)).center()));
}

} // namespace

Journey::Journey() = default;
Journey::~Journey() = default;

void Journey::initTestCase()
{
    ApplicationLook::install();
    QVERIFY(Wording::install());
    QGuiApplication::setApplicationDisplayName(u"Velmo Workstation"_s);
    QCoreApplication::setOrganizationName(u"Journeys"_s);
}

void Journey::init()
{
    TestCase::init();
    m_folder = std::make_unique<QTemporaryDir>();
    copyFolder(ShippedProjects::folder(), m_folder->filePath(u"projects"_s));
    QVERIFY(QDir(m_folder->path()).mkdir(u"data"_s));
    qputenv("XDG_DATA_HOME", m_folder->filePath(u"data"_s).toLocal8Bit());
    keepSettingsIn(m_folder->filePath(u"settings"_s));
    QDir(pictureFolder()).removeRecursively();
    m_pictures = 0;
    openWindow();
}

void Journey::cleanup()
{
    m_window.reset();
    m_settings.reset();
    m_folder.reset();
    QCOMPARE(std::exchange(m_awaitedLoops, 0), 0);
    TestCase::cleanup();
}

QString Journey::scenePath(const QString &project, const QString &scene) const
{
    return m_folder->filePath(u"projects/%1/%2.vscene"_s.arg(project, scene));
}

QStringList Journey::trash() const
{
    return QDir(m_folder->filePath(u"data/Trash/files"_s)).entryList(QDir::Files);
}

void Journey::restart()
{
    m_window->close();
    openWindow();
}

void Journey::openWindow()
{
    m_window.reset();
    m_settings = std::make_unique<QSettings>();
    m_window = std::make_unique<WorkstationWindow>(m_folder->filePath(u"projects"_s), m_settings.get());
    RealInput::show(m_window.get(), place);
    waitFor([this] { return !m_window->startScreen()->isReading(); }, "the scenes of the first project");
}

void Journey::openScene(const QString &project, const QString &scene)
{
    click(seen<VelmoProjectItem>(project));
    click(seen<VelmoSceneItem>(scene));
    click(m_window->startScreen()->findChild<QWidget *>(u"okButton"_s));
    waitFor([this] { return m_window->showsScene() && !m_window->isLoading(); }, "the scene");
    waitFor([this] { return m_window->scenePage()->visibleRegion().boundingRect().width() > 0; }, "its view");
    QTest::qWait(100); // the panels' own layout
}

void Journey::chooseFromMenu(const QString &menu, const QString &item)
{
    clickIn(m_window->menuBar(), menu);
    const QMenu *opened = actionOf(m_window->menuBar(), menu)->menu();
    waitFor([opened] { return opened->isVisible(); }, qPrintable(menu));
    clickIn(opened, item);
}

void Journey::waitFor(const std::function<bool()> &condition, const char *what)
{
    if (QTest::qWaitFor(condition, patience))
        return;
    keep(u"lost"_s);
    qFatal("waited in vain: %s", what);
}

QString Journey::nameOf(QWidget *widget)
{
    const QAccessibleInterface *interface = QAccessible::queryAccessibleInterface(widget);
    return interface ? interface->text(QAccessible::Name) : QString();
}

const QWidget *Journey::partOrWindow(const QWidget *part) const
{
    return part ? part : m_window.get();
}

QPoint Journey::middleOf(const QWidget *widget)
{
    return widget->mapToGlobal(widget->rect().center());
}

void Journey::click(const QWidget *widget)
{
    waitFor([widget] { return widget->visibleRegion().contains(widget->rect().center()); },
            qPrintable(u"the middle of "_s + nameOf(const_cast<QWidget *>(widget))));
    RealInput::click(middleOf(widget));
}

void Journey::enter(const QWidget *field, const QString &text)
{
    click(field);
    RealInput::key(u"ctrl+a"_s);
    RealInput::type(text);
    RealInput::key(u"Return"_s);
}

void Journey::onceOpenChoose(const QString &item)
{
    onceOpen<QMenu>([item](QMenu *menu) { clickIn(menu, item); });
}

void Journey::awaitLoop(const std::function<bool(QWidget *)> &isIt, const std::function<void(QWidget *)> &act)
{
    ++m_awaitedLoops;
    auto *poll = new QTimer(m_window.get());
    const auto innermost = [] {
        QWidget *popup = QApplication::activePopupWidget();
        return QPointer<QWidget>(popup ? popup : QApplication::activeModalWidget());
    };
    poll->callOnTimeout(m_window.get(), [this, poll, isIt, act, innermost, before = innermost()] {
        const QPointer<QWidget> opened = innermost();
        if (!opened || opened == before || !isIt(opened) || !opened->isVisible())
            return;
        poll->stop();
        poll->deleteLater();
        --m_awaitedLoops;
        const auto end = qScopeGuard([opened] { // what got no answer would run for ever
            if (opened)
                opened->hide();
        });
        QVERIFY(QTest::qWaitForWindowExposed(opened));
        QVERIFY(opened->windowType() == Qt::Popup || QTest::qWaitForWindowActive(opened));
        QTest::qWait(100); // the window manager's echoes of the placing
        act(opened);
        QTRY_VERIFY(!opened || !opened->isVisible());
    });
    poll->start(10);
}

QString Journey::pictureFolder() const
{
    return QStringLiteral(VELMO_JOURNEYS) + u'/' + QString::fromLatin1(QTest::currentTestFunction());
}

void Journey::keep(const QString &name)
{
    QCoreApplication::processEvents(); // what is still to be painted
    QRect area;
    const QWidgetList windows = QApplication::topLevelWidgets();
    for (const QWidget *shown : windows) {
        if (shown->isVisible())
            area |= shown->frameGeometry();
    }
    const QScreen *screen = m_window->screen();
    area &= screen->geometry();
    const QPixmap picture =
        const_cast<QScreen *>(screen)->grabWindow(0, area.x(), area.y(), area.width(), area.height());
    QVERIFY(QDir().mkpath(pictureFolder()));
    const QString number = QString::number(++m_pictures).rightJustified(2, u'0');
    QVERIFY(picture.save(u"%1/%2-%3.png"_s.arg(pictureFolder(), number, name)));
}
