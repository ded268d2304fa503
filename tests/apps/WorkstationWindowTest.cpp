#include "support/Gestures.h"
#include "support/TestCase.h"

#include "OvixSvgButton.h"
#include "oVIXGrip.h"
#include "oVIXWindowWaitGlobal.h"
#include "start/StartScreen.h"
#include "start/StatusLine.h"
#include "window/SceneFactsDialog.h"
#include "window/ScenePage.h"
#include "window/WorkstationWindow.h"

#include <QDir>
#include <QFile>
#include <QMenuBar>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QTest>

using namespace Qt::StringLiterals;

class WorkstationWindowTest : public TestCase
{
    Q_OBJECT

private slots:
    void init()
    {
        TestCase::init();
        m_folder = std::make_unique<QTemporaryDir>();
        QVERIFY(QDir(m_folder->path()).mkdir(u"Airport"_s));
        write(u"Hall"_s, "<actors><actor/><actor/></actors>");
        m_window = std::make_unique<WorkstationWindow>(m_folder->path());
        Gestures::show(m_window.get());
        QTRY_VERIFY(!m_window->startScreen()->isReading());
    }
    void cleanup()
    {
        m_window.reset();
        m_folder.reset();
        TestCase::cleanup();
    }

    void opensTheSelectedSceneAndReturns()
    {
        QVERIFY(action(u"Open"_s)->isEnabled() && !action(u"Facts"_s)->isEnabled());
        action(u"Open"_s)->trigger();
        QVERIFY(m_window->isLoading());
        QVERIFY(!action(u"Open"_s)->isEnabled());
        QTRY_VERIFY(!m_window->isLoading());
        QVERIFY(m_window->showsScene());
        QVERIFY(!wait()->isVisible() && !wait()->isRunning());
        QCOMPARE(m_window->scenePage()->scene().people.size(), 2);
        QVERIFY(m_window->windowTitle().startsWith(u"Hall"_s));
        action(u"Back to projects"_s)->trigger();
        QVERIFY(!m_window->showsScene());
    }

    void aLongLoadIsShownAndCancelled()
    {
        write(u"Crowd"_s, "<actors>" + QByteArray("<actor name=\"A\"/>").repeated(400000) + "</actors>");
        m_window->openScene(path(u"Crowd"_s));
        wait()->timeElapsedEvent(); // instead of a whole second
        QTRY_VERIFY(wait()->isVisible());
        QTRY_COMPARE(wait()->getText(), u"Reading people"_s);
        QTRY_VERIFY(wait()->getPercent() > 0);
        QVERIFY(wait()->isTextVisible() && wait()->isPercentVisible());
        QTest::keyClick(m_window.get(), Qt::Key_Escape);
        QTRY_VERIFY(!m_window->isLoading());
        QVERIFY(!wait()->isVisible());
        QVERIFY(!m_window->showsScene());
        QVERIFY(status()->showsProblem());

        m_window->openScene(path(u"Crowd"_s)); // and the window goes meanwhile
    }

    void saysWhyASceneCannotBeOpened()
    {
        m_window->openScene(path(u"None"_s));
        QTRY_VERIFY(!m_window->isLoading());
        QVERIFY(!m_window->showsScene());
        QVERIFY2(status()->text().contains(u"None"_s), qPrintable(status()->text()));
    }

    void aDialogDimsTheWindow()
    {
        m_window->showSceneFacts(); // about no scene: nothing
        m_window->openScene(path(u"Hall"_s));
        QTRY_VERIFY(m_window->showsScene());
        QWidget *block = m_window->getWindowBlock();
        QVERIFY(!block->isVisible());
        m_window->showSceneFacts();
        QPointer<SceneFactsDialog> dialog = m_window->findChild<SceneFactsDialog *>();
        QTRY_VERIFY(dialog && dialog->isVisible());
        QTRY_VERIFY(block->isVisible());
        QCOMPARE(block->size(), m_window->size());
        QTest::keyClick(dialog.data(), Qt::Key_Escape);
        QTRY_VERIFY(!dialog);
        QVERIFY(!block->isVisible());
    }

    void maximisesAndRestores()
    {
        auto *button = m_window->findChild<OvixSvgButton *>(u"btMax"_s);
        const auto grips = m_window->findChildren<oVIXGrip *>(QString(), Qt::FindDirectChildrenOnly);
        const QRect before = m_window->geometry();
        Gestures::click(button);
        QTRY_VERIFY(m_window->isMaximized());
        QCOMPARE(button->firstFilename(), u":/Windows/Restore"_s);
        QVERIFY(!grips.first()->isEnabled());
        action(u"Restore"_s)->trigger();
        QTRY_VERIFY(!m_window->isMaximized());
        QCOMPARE(button->firstFilename(), u":/Windows/Maximize"_s);
        QVERIFY(grips.first()->isEnabled());
        QTRY_COMPARE(m_window->geometry(), before);
    }

private:
    QString path(const QString &scene) const { return m_folder->filePath(u"Airport/%1.vscene"_s.arg(scene)); }

    void write(const QString &scene, const QByteArray &content) const
    {
        QFile file(path(scene));
        QVERIFY(file.open(QIODevice::WriteOnly));
        file.write("<VelmoSerializer>\n<scenemetadata/>\n" + content + "</VelmoSerializer>\n");
    }

    QAction *action(const QString &text) const
    {
        for (QAction *candidate : m_window->findChildren<QAction *>()) {
            if (candidate->text() == text)
                return candidate;
        }
        return nullptr;
    }
    oVIXWindowWaitGlobal *wait() const { return m_window->getWindowWait(); }
    StatusLine *status() const { return m_window->startScreen()->findChild<StatusLine *>(); }

    std::unique_ptr<QTemporaryDir> m_folder;
    std::unique_ptr<WorkstationWindow> m_window;
};

VELMO_TEST_MAIN(WorkstationWindowTest)
#include "WorkstationWindowTest.moc"
