#include "support/Files.h"
#include "support/Gestures.h"
#include "support/TestCase.h"

#include "BoxAnswer.h"

#include "VelmoProjectItem.h"
#include "VelmoProjectScenesWidget.h"
#include "VelmoProjectsTable.h"
#include "VelmoSceneItem.h"
#include "VelmoScenesTable.h"
#include "VelmoYesNoWidget.h"
#include "start/StartScreen.h"
#include "start/StatusLine.h"

#include <QDir>
#include <QFile>
#include <QLabel>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QTest>
#include <QTextBrowser>

using namespace Qt::StringLiterals;

class StartScreenTest : public TestCase
{
    Q_OBJECT

private slots:
    void init()
    {
        TestCase::init();
        m_folder = std::make_unique<QTemporaryDir>();
        write(u"Airport/Hall.vscene"_s, goodScene);
        write(u"Airport/Gate.vscene"_s, goodScene);
        write(u"Airport/Broken.vscene"_s, "no scene");
        write(u"Station/Platform.vscene"_s, goodScene);
        m_screen = std::make_unique<StartScreen>(m_folder->path());
        m_screen->resize(1180, 760); // every row is in view
        Gestures::show(m_screen.get());
        QTRY_VERIFY(!m_screen->isReading());
    }
    void cleanup()
    {
        m_screen.reset();
        m_folder.reset();
        TestCase::cleanup();
    }

    void listsTheScenesOfTheFirstProject()
    {
        QCOMPARE(sceneNames(), QStringList({u"Broken"_s, u"Gate"_s, u"Hall"_s}));
        QCOMPARE(table()->getSelectedScene(), u"Gate"_s);
        QCOMPARE(status()->text(), u"3 scenes, 1 could not be read"_s);
        QVERIFY(!table()->findChildren<VelmoSceneItem *>().first()->isEnabled());
        const auto *projects = m_screen->findChild<VelmoProjectsTable *>();
        QCOMPARE(projects->getSelectedProject(), path(u"Airport"_s));
        const QString modified = QFileInfo(path(u"Airport"_s)).lastModified().toString();
        QCOMPARE(projects->findChild<VelmoProjectItem *>()->findChild<QLabel *>(u"lastModifiedLabel"_s)->text(),
                 modified);
    }

    void opensAndLeavesByTheBar()
    {
        QSignalSpy opened(m_screen.get(), &StartScreen::openRequested);
        auto *bar = m_screen->findChild<VelmoYesNoWidget *>();
        Gestures::click(bar->findChild<QWidget *>(u"okButton"_s));
        QCOMPARE(opened.size(), 1);
        QCOMPARE(opened.first().first().toString(), path(u"Airport/Gate.vscene"_s));
        Gestures::click(bar->findChild<QWidget *>(u"cancelButton"_s));
        QVERIFY(!m_screen->canOpen() && !bar->getEnableOkButton());
        QVERIFY(!m_screen->findChild<QWidget *>(u"deleteSceneButton"_s)->isEnabled());
        m_screen->openSelectedScene();
        QCOMPARE(opened.size(), 1);
    }

    void previewsWhatTheFileHolds()
    {
        write(u"Station/Square.vscene"_s,
              "<VelmoSerializer>\n<scenemetadata/>\n<background width=\"100\" depth=\"50\"/>\n</VelmoSerializer>\n");
        m_screen->selectProject(1);
        QTRY_VERIFY(!m_screen->isReading());
        const auto *preview = m_screen->findChild<QLabel *>(u"thumbnailLabel"_s);
        QTRY_VERIFY(preview->text().contains(u"NO SCENE PREVIEW"_s)); // of "Platform"
        auto *panel = m_screen->findChild<VelmoProjectScenesWidget *>();
        panel->setSceneSelected(u"Square"_s);
        QTRY_VERIFY(!preview->pixmap().isNull());
        QCOMPARE(preview->pixmap().deviceIndependentSize().toSize(), preview->size());
        const QImage picture = preview->pixmap().toImage();
        QVERIFY(picture.pixelColor(picture.rect().center()) != picture.pixelColor(0, 0)); // ground and around
        panel->setSceneSelected(u"Platform"_s);
        QTRY_VERIFY(preview->pixmap().isNull());
        panel->setSceneSelected(u"Square"_s); // and the window may close meanwhile
    }

    void scenesNeverLandInTheWrongList()
    {
        for (int i = 0; i < 200; ++i)
            write(u"Airport/More %1.vscene"_s.arg(i), goodScene);
        m_screen->selectProject(1);
        m_screen->selectProject(0);
        m_screen->selectProject(1);
        QTRY_VERIFY(!m_screen->isReading());
        QCOMPARE(sceneNames(), QStringList(u"Platform"_s));
        m_screen->selectProject(0); // and the window may close meanwhile
        QVERIFY(m_screen->isReading());
    }

    void saysWhyARenameIsRefused()
    {
        emit table()->renameRequested(u"Hall"_s, u"gate"_s);
        QVERIFY2(readReport().contains(u"gate"_s), qPrintable(m_report));
        QVERIFY(table()->hasScene(u"Hall"_s));

        QVERIFY(QFile::remove(path(u"Airport/Hall.vscene"_s))); // what has vanished goes from the list
        emit table()->renameRequested(u"Hall"_s, u"Exit"_s);
        QVERIFY2(readReport().contains(u"Hall"_s), qPrintable(m_report));
        QTRY_COMPARE(sceneNames(), QStringList({u"Broken"_s, u"Gate"_s}));
    }

    void renamesTheRightOneOfTwoThatDifferInCase()
    {
        write(u"Station/PLATFORM.vscene"_s, goodScene);
        const bool tellsCasesApart = QDir(path(u"Station"_s)).entryList(QDir::Files).size() == 2;
        m_screen->selectProject(1);
        QTRY_VERIFY(!m_screen->isReading());
        emit table()->renameRequested(u"Platform"_s, u"Track"_s);
        QTRY_VERIFY(!m_screen->isReading());
        QCOMPARE(sceneNames(), tellsCasesApart ? QStringList({u"PLATFORM"_s, u"Track"_s}) : QStringList(u"Track"_s));
        QCOMPARE(table()->getSelectedScene(), u"Track"_s);
    }

    void asksBeforeItDeletes()
    {
        write(u"Airport/A &amp;  b.vscene"_s, goodScene);
        m_screen->selectProject(1);
        m_screen->selectProject(0);
        QTRY_VERIFY(!m_screen->isReading());
        QCOMPARE(table()->getSelectedScene(), u"A &amp;  b"_s);
        answerNextBox([](VelmoMessageWidget *box) {
            const QString text = box->findChild<QTextBrowser *>(u"textBrowser"_s)->toPlainText();
            QVERIFY2(text.contains(u"A &amp;  b"_s), qPrintable(text));
            QTest::keyClick(box, Qt::Key_Escape);
        });
        m_screen->deleteSelectedScene();
        QVERIFY(QFile::exists(path(u"Airport/A &amp;  b.vscene"_s)));

        // The file goes while the question is up.
        answerNextBox([this](VelmoMessageWidget *box) {
            QVERIFY(QFile::remove(path(u"Airport/A &amp;  b.vscene"_s)));
            box->fnAccept();
        });
        m_screen->deleteSelectedScene();
        QVERIFY2(readReport().contains(u"A &amp;  b"_s), qPrintable(m_report));
        QTRY_COMPARE(sceneNames(), QStringList({u"Broken"_s, u"Gate"_s, u"Hall"_s}));
    }

    void addsAndSelectsANewScene()
    {
        for (const QString &name : {u"New scene"_s, u"New scene 2"_s}) {
            emit table()->newScenePressed();
            QTRY_VERIFY(!m_screen->isReading());
            QVERIFY(QFile::exists(path(u"Airport/%1.vscene"_s.arg(name))));
            QCOMPARE(table()->getSelectedScene(), name);
            QVERIFY2(status()->text().contains(name), qPrintable(status()->text()));
        }
        QCOMPARE(sceneNames().size(), 5);
        m_screen->cloneSelectedScene();
        QTRY_VERIFY(!m_screen->isReading());
        QCOMPARE(table()->getSelectedScene(), u"New scene 2 copy"_s);

        QVERIFY(m_screen->canOpen());
        QVERIFY(QDir(m_folder->path()).mkdir(u"Empty"_s));
        StartScreen rescanned(m_folder->path());
        QTRY_VERIFY(rescanned.canOpen());
        QSignalSpy changed(&rescanned, &StartScreen::selectionChanged);
        rescanned.selectProject(1);
        QVERIFY(!rescanned.canOpen() && !changed.isEmpty());

        StartScreen screen(path(u"none"_s)); // a missing folder has no projects
        screen.selectProject(0);
        QVERIFY(screen.findChild<StatusLine *>()->showsProblem());
    }

private:
    static constexpr auto goodScene = "<VelmoSerializer>\n<scenemetadata actorcount=\"3\"/>\n</VelmoSerializer>\n";

    VelmoScenesTable *table() const { return m_screen->findChild<VelmoScenesTable *>(); }
    StatusLine *status() const { return m_screen->findChild<StatusLine *>(); }
    QString path(const QString &name) const { return QDir(m_folder->path()).filePath(name); }

    QStringList sceneNames() const
    {
        QStringList names;
        for (const VelmoSceneItem *row : table()->findChildren<VelmoSceneItem *>())
            names << row->getName();
        return names;
    }

    void write(const QString &name, const QByteArray &content) const { Files::write(path(name), content); }

    /// Closes the box that is about to come and tells what it says.
    QString readReport()
    {
        m_report.clear();
        answerNextBox([this](VelmoMessageWidget *box) {
            m_report = box->findChild<QTextBrowser *>(u"textBrowser"_s)->toPlainText();
            box->fnAccept();
        });
        QCoreApplication::processEvents();
        return m_report;
    }

    QString m_report;
    std::unique_ptr<QTemporaryDir> m_folder;
    std::unique_ptr<StartScreen> m_screen;
};

VELMO_TEST_MAIN(StartScreenTest)
#include "StartScreenTest.moc"
