#include "apps/WindowTest.h"
#include "support/Files.h"

#include "BoxAnswer.h"

#include "VelmoScenesTable.h"
#include "oVIXSliderWidget.h"
#include "oVIXTimebarWidget.h"
#include "panels/CrowdEditor.h"
#include "panels/ParametersPanel.h"
#include "start/StartScreen.h"
#include "window/ScenePage.h"
#include "window/WorkstationWindow.h"

#include <QAction>
#include <QDir>
#include <QLabel>
#include <QSpinBox>
#include <QTest>

using namespace Qt::StringLiterals;

/// Saving the open scene, and leaving it.
class SceneKeepingTest : public WindowTest
{
    Q_OBJECT

public:
    SceneKeepingTest()
        : WindowTest({{u"Gate"_s, {}},
                      {u"Hall"_s,
                       "<scenemetadata bakestatus=\"Not baked\"/>\n<timeline frames=\"12\" fps=\"100\"/>\n<tags><tag "
                       "id=\"1\" name=\"vip\"/></tags>\n"
                       "<actors><actor type=\"adult\"/><actor type=\"child\"/></actors>\n"}})
    { }

private slots:
    void init()
    {
        WindowTest::init();
        table()->setSelectedScene(u"Hall"_s);
        open();
    }

    void isMarkedWhileTheFileDiffers()
    {
        const CrowdSettings before = window()->parametersPanel()->crowd()->settings();
        page()->setCrowd({});
        QVERIFY(isMarked());
        page()->setCrowd(before);
        QVERIFY(!isMarked());
        page()->timebar()->setCropValues(2, 8);
        emit page()->timebar()->s_cropChanged();
        QVERIFY(isMarked());
        save();
        page()->toggleBaking();
        QTRY_VERIFY(!page()->bake().isRunning());
        QVERIFY(isMarked());
        save();
        const Scene saved = page()->scene();
        window()->closeScene(); // without a question
        QTRY_VERIFY(!window()->startScreen()->isReading());
        QCOMPARE(table()->getSelectedScene(), u"Hall"_s);
        open();
        QVERIFY(page()->scene() == saved && !isMarked());
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
            window()->close();
        else
            window()->closeScene();
        const bool isLeft = closesWindow ? !window()->isVisible() : !window()->showsScene();
        QCOMPARE(isLeft, answer != MsgRejected);
        QCOMPARE(content().contains("count=\"3\""), answer == MsgAccepted);
        QCOMPARE(content() == before, answer != MsgAccepted);
        if (isLeft && !closesWindow)
            open(); // without another question
    }

    void whatCannotBeSavedStaysOpen()
    {
        type(3);
        write(u"Hall"_s, "<note>somebody else's</note>\n");
        const QByteArray theirs = content();
        answerNextBox([](VelmoMessageWidget *box) { box->fnReject(); });
        save();
        QVERIFY(isMarked() && content() == theirs);
        QVERIFY(QFileInfo(path()).dir().removeRecursively());
        answerNextBox([](VelmoMessageWidget *box) {
            answerNextBox([](VelmoMessageWidget *report) { report->fnAccept(); });
            box->fnAccept();
        });
        window()->closeScene();
        QVERIFY(window()->showsScene() && isMarked());
        answerNextBox([this](VelmoMessageWidget *) { deleteWindow(); });
        window()->closeScene(); // and the window goes meanwhile
    }

private:
    VelmoScenesTable *table() const { return window()->startScreen()->findChild<VelmoScenesTable *>(); }
    ScenePage *page() const { return window()->scenePage(); }
    void save() const { action(u"Save"_s)->trigger(); }
    bool isMarked() const
    {
        return window()->isWindowModified() && page()->findChild<QLabel *>(u"unsaved"_s)->isVisible();
    }

    /// Types another number of people without confirming it.
    void type(int people) const
    {
        auto *box =
            window()->parametersPanel()->crowd()->findChild<oVIXSliderWidget *>()->findChild<QSpinBox *>(u"spinMax"_s);
        QVERIFY(box && QTest::qWaitForWindowActive(window()));
        box->setFocus();
        box->selectAll();
        QTest::keyClicks(box, QString::number(people));
    }
    QByteArray content() const { return Files::read(path()); }
};

VELMO_TEST_MAIN(SceneKeepingTest)
#include "SceneKeepingTest.moc"
