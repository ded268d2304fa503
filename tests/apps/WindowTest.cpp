#include "apps/WindowTest.h"

#include "support/Files.h"
#include "support/Gestures.h"

#include "start/StartScreen.h"
#include "window/WorkstationWindow.h"

#include <QDir>
#include <QSettings>
#include <QTest>

using namespace Qt::StringLiterals;

WindowTest::WindowTest(QMap<QString, QByteArray> scenes) : m_scenes(std::move(scenes))
{ }
WindowTest::~WindowTest() = default;

void WindowTest::init()
{
    TestCase::init();
    m_folder = std::make_unique<QTemporaryDir>();
    QVERIFY(QDir(m_folder->path()).mkdir(u"Airport"_s));
    for (auto scene = m_scenes.cbegin(); scene != m_scenes.cend(); ++scene)
        write(scene.key(), scene.value());
    openWindow();
}

void WindowTest::cleanup()
{
    m_window.reset();
    m_settings.reset();
    m_folder.reset();
    TestCase::cleanup();
}

void WindowTest::openWindow()
{
    m_window.reset();
    m_settings = std::make_unique<QSettings>(m_folder->filePath(u"settings.ini"_s), QSettings::IniFormat);
    m_window = std::make_unique<WorkstationWindow>(m_folder->path(), m_settings.get());
    show(m_window.get());
    QTRY_VERIFY(!m_window->startScreen()->isReading());
}

void WindowTest::deleteWindow()
{
    m_window.reset();
}

void WindowTest::show(QWidget *window) const
{
    Gestures::show(window);
}

QAction *WindowTest::action(const QString &text) const
{
    const QList<QAction *> actions = m_window->findChildren<QAction *>();
    const auto found = std::find_if(actions.cbegin(), actions.cend(),
                                    [&text](const QAction *action) { return action->text() == text; });
    return found == actions.cend() ? nullptr : *found;
}

void WindowTest::open(const QString &scene) const
{
    m_window->openScene(path(scene));
    QTRY_VERIFY(!m_window->isLoading());
    QVERIFY(m_window->showsScene());
}

QString WindowTest::path(const QString &scene) const
{
    return m_folder->filePath(u"Airport/%1.vscene"_s.arg(scene));
}

void WindowTest::write(const QString &scene, const QByteArray &content) const
{
    const QByteArray facts = content.contains("<scenemetadata") ? "" : "<scenemetadata/>\n";
    Files::write(path(scene), "<VelmoSerializer>\n" + facts + content + "</VelmoSerializer>\n");
}
