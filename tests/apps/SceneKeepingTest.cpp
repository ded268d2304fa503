#include "support/Gestures.h"
#include "support/TestCase.h"

#include "BoxAnswer.h"

#include "VelmoScenesTable.h"
#include "oVIXButton.h"
#include "oVIXSliderWidget.h"
#include "oVIXTimebarWidget.h"
#include "panels/CrowdEditor.h"
#include "panels/ParametersPanel.h"
#include "start/StartScreen.h"
#include "window/ScenePage.h"
#include "window/WorkstationWindow.h"

#include <QDir>
#include <QFile>
#include <QLabel>
#include <QSpinBox>
#include <QTemporaryDir>
#include <QTest>

using namespace Qt::StringLiterals;

/// Saving the open scene, and leaving it.
class SceneKeepingTest : public TestCase
{
    Q_OBJECT

private slots:
    void init()
    {
        TestCase::init();
        m_folder = std::make_unique<QTemporaryDir>();
        QVERIFY(QDir(m_folder->path()).mkdir(u"Airport"_s));
        write(u"Gate"_s, {});
        write(u"Hall"_s,
              "<scenemetadata bakestatus=\"Not baked\"/>\n<timeline frames=\"12\" fps=\"100\"/>\n<tags><tag id=\"1\" "
              "name=\"vip\"/></tags>\n"
              "<actors><actor type=\"adult\"/><actor type=\"child\"/></actors>\n");
        m_window = std::make_unique<WorkstationWindow>(m_folder->path());
        Gestures::show(m_window.get());
        QTRY_VERIFY(!screen()->isReading());
        screen()->findChild<VelmoScenesTable *>()->setSelectedScene(u"Hall"_s);
        open();
    }
    void cleanup()
    {
        m_window.reset();
        m_folder.reset();
        TestCase::cleanup();
    }

    void savesWhatIsEditedAndShowsItInTheList()
    {
        const CrowdSettings before = m_window->parametersPanel()->crowd()->settings();
        page()->setCrowd({});
        QVERIFY(isMarked());
        page()->setCrowd(before);
        QVERIFY(!isMarked());
        type(5); // and does not leave the box
        page()->timebar()->setCropValues(2, 8);
        emit page()->timebar()->s_cropChanged();
        page()->setTags({}, {u"vip"_s, u"late"_s});
        QVERIFY(isMarked());
        save()->trigger();
        QVERIFY(!isMarked());
        QCOMPARE(page()->scene().crowdSize(), 5);
        page()->toggleBaking();
        QTRY_VERIFY(!page()->bake().isRunning());
        QVERIFY(isMarked());
        save()->trigger();
        const Scene saved = page()->scene();

        m_window->closeScene(); // without a question
        QVERIFY(!m_window->showsScene());
        QTRY_VERIFY(!screen()->isReading());
        QCOMPARE(screen()->findChild<VelmoScenesTable *>()->getSelectedScene(), u"Hall"_s);
        QStringList shown;
        for (const QLabel *label : screen()->findChild<VelmoScenesTable *>()->findChildren<QLabel *>())
            shown << label->text();
        for (const QString &fact : {u"Baked"_s, u"5"_s, u"00:00:00 | 100"_s})
            QVERIFY2(shown.contains(fact), qPrintable(fact + u" is not in "_s + shown.join(u';')));
        open();
        QVERIFY(page()->scene() == saved);
        QVERIFY(!isMarked());
        QCOMPARE(page()->timebar()->getCropStartValue(), 2);
        QCOMPARE(page()->timebar()->getCropEndValue(), 8);
    }

    void asksBeforeASceneIsLeft_data()
    {
        QTest::addColumn<bool>("closesWindow");
        QTest::addColumn<int>("answer");
        for (const bool closesWindow : {false, true}) {
            const char *const way = closesWindow ? "window" : "scene";
            QTest::addRow("%s: save", way) << closesWindow << int(MsgAccepted);
            QTest::addRow("%s: don't save", way) << closesWindow << int(MsgOther);
            QTest::addRow("%s: cancel", way) << closesWindow << int(MsgRejected);
        }
    }
    void asksBeforeASceneIsLeft()
    {
        QFETCH(bool, closesWindow);
        QFETCH(int, answer);
        type(3);
        const QByteArray before = content();
        answerNextBox([answer](VelmoMessageWidget *box) { box->done(answer); });
        if (closesWindow)
            m_window->close();
        else
            m_window->closeScene();
        const bool isLeft = closesWindow ? !m_window->isVisible() : !m_window->showsScene();
        QCOMPARE(isLeft, answer != MsgRejected);
        QCOMPARE(content().contains("count=\"3\""), answer == MsgAccepted);
        QCOMPARE(content() == before, answer != MsgAccepted);
        if (isLeft && !closesWindow)
            open(); // without another question
    }

    void leavingABakeAsksFirst()
    {
        write(u"Hall"_s, "<timeline frames=\"900000\"/>" + QByteArray("<actor/>").repeated(200));
        m_window->closeScene();
        open();
        page()->toggleBaking();
        answerNextBox([](VelmoMessageWidget *box) { box->fnReject(); });
        m_window->closeScene();
        QVERIFY(page()->bake().isRunning());
        QTRY_VERIFY(page()->bake().computedFrames() > 0);
        answerNextBox([](VelmoMessageWidget *box) { box->fnAccept(); });
        m_window->closeScene();
        QVERIFY(!m_window->showsScene() && !page()->bake().isRunning());
        QVERIFY(content().contains("status=\"Partial\""));
    }

    void whatCannotBeSavedStaysOpen()
    {
        type(3);
        write(u"Hall"_s, "<note>somebody else's</note>\n");
        const QByteArray theirs = content();
        answerNextBox([](VelmoMessageWidget *box) { box->fnReject(); });
        save()->trigger();
        QVERIFY(isMarked() && content() == theirs);
        QVERIFY(QDir(m_folder->filePath(u"Airport"_s)).removeRecursively());
        answerNextBox([](VelmoMessageWidget *box) {
            answerNextBox([](VelmoMessageWidget *report) { report->fnAccept(); });
            box->fnAccept();
        });
        m_window->closeScene();
        QVERIFY(m_window->showsScene() && isMarked());
        answerNextBox([this](VelmoMessageWidget *) { m_window.reset(); });
        m_window->closeScene(); // and the window goes meanwhile
    }

private:
    StartScreen *screen() const { return m_window->startScreen(); }
    ScenePage *page() const { return m_window->scenePage(); }
    QAction *save() const
    {
        for (QAction *action : m_window->findChildren<QAction *>()) {
            if (action->shortcut() == QKeySequence(QKeySequence::Save))
                return action;
        }
        return nullptr;
    }
    bool isMarked() const
    {
        return m_window->isWindowModified() && page()->findChild<QLabel *>(u"unsaved"_s)->isVisible();
    }

    void open() const
    {
        m_window->openScene(m_folder->filePath(u"Airport/Hall.vscene"_s));
        QTRY_VERIFY(!m_window->isLoading());
        QVERIFY(m_window->showsScene());
    }
    /// Types another number of people without confirming it.
    void type(int people) const
    {
        auto *box =
            m_window->parametersPanel()->crowd()->findChild<oVIXSliderWidget *>()->findChild<QSpinBox *>(u"spinMax"_s);
        QVERIFY(box && QTest::qWaitForWindowActive(m_window.get()));
        box->setFocus();
        box->selectAll();
        QTest::keyClicks(box, QString::number(people));
    }
    void write(const QString &scene, const QByteArray &content) const
    {
        QFile file(m_folder->filePath(u"Airport/%1.vscene"_s.arg(scene)));
        QVERIFY(file.open(QIODevice::WriteOnly));
        file.write("<VelmoSerializer>\n" + content + "</VelmoSerializer>\n");
    }
    QByteArray content() const
    {
        QFile file(m_folder->filePath(u"Airport/Hall.vscene"_s));
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
    }

    std::unique_ptr<QTemporaryDir> m_folder;
    std::unique_ptr<WorkstationWindow> m_window;
};

VELMO_TEST_MAIN(SceneKeepingTest)
#include "SceneKeepingTest.moc"
