#include "desktop/Journey.h"
#include "desktop/RealInput.h"
#include "support/Files.h"

#include "OvixMovableLabel.h"
#include "OvixSvgButton.h"
#include "VelmoMessageBox.h"
#include "VelmoSceneItem.h"
#include "oVIXButton.h"
#include "oVIXTimebarWidget.h"
#include "start/StatusLine.h"
#include "window/ScenePage.h"
#include "window/SceneView.h"
#include "window/WorkstationWindow.h"

#include <QLabel>
#include <QTest>

using namespace Qt::StringLiterals;

class BakingJourney : public Journey
{
    Q_OBJECT

private slots:
    void bakesAndPlaysInsideTheCrop()
    {
        openScene(u"Stadium Egress"_s, u"Steward briefing"_s);
        QVERIFY(!seen<OvixSvgButton>(u"Play"_s)->isEnabled());
        keep(u"opened"_s);
        click(seen<oVIXButton>(u"Bake"_s));
        QTRY_VERIFY(!bake().isRunning() && bake().computedFrames() == 750);
        QCOMPARE(page()->findChild<StatusLine *>()->text(), u"750 frames are baked"_s);
        QCOMPARE(timebar()->getCached(), 749);
        keep(u"baked"_s);

        dragMarker(u"Crop start"_s, 20);
        const int first = timebar()->getCropStartValue();
        dragMarker(u"Crop end"_s, marker(u"Crop start"_s)->x() - marker(u"Crop end"_s)->x());
        const int last = timebar()->getCropEndValue();
        QVERIFY2(first > 10 && last > first + 5 && last < first + 100, qPrintable(u"%1 to %2"_s.arg(first).arg(last)));
        keep(u"cropped"_s);

        click(seen<OvixSvgButton>(u"Play"_s));
        QTRY_VERIFY(page()->isPlaying());
        QTRY_VERIFY(timebar()->getCurrentPlayValue() > first + 2);
        const QImage early = viewOnScreen();
        QImage late;
        QSet<int> played;
        bool again = false;
        for (int before = 0; !again; QTest::qWait(5)) {
            const int frame = timebar()->getCurrentPlayValue();
            QVERIFY2(frame >= first && frame <= last, qPrintable(QString::number(frame)));
            again = frame < before;
            before = frame;
            played << frame;
            if (late.isNull() && frame > (first + last) / 2)
                late = viewOnScreen();
        }
        QVERIFY(!late.isNull() && late != early);
        QVERIFY2(played.size() * 2 > last - first, qPrintable(QString::number(played.size())));
        keep(u"playing"_s);
        click(seen<OvixSvgButton>(u"Pause"_s));
        QTRY_VERIFY(!page()->isPlaying());

        // A click on the bar picks a frame; beyond the crop it is the crop's start.
        click(seen<QWidget>(u"Cached frames"_s));
        QTRY_COMPARE(timebar()->getCurrentPlayValue(), first);

        chooseFromMenu(u"Scene"_s, u"Save"_s);
        QTRY_VERIFY(!window()->isWindowModified());
        const QByteArray content = Files::read(scenePath(u"Stadium Egress"_s, u"Steward briefing"_s));
        QVERIFY(content.contains("bakestatus=\"Baked\""));
        QVERIFY(content.contains(u"<crop first=\"%1\" last=\"%2\"/>"_s.arg(first).arg(last).toLatin1()));
        chooseFromMenu(u"Scene"_s, u"Back to projects"_s);
        QTRY_VERIFY(!window()->showsScene());
        QVERIFY(seen<QLabel>(u"Baked"_s, seen<VelmoSceneItem>(u"Steward briefing"_s)));
        keep(u"listed"_s);
    }

    void asksBeforeItBakesAgain()
    {
        openScene(u"Stadium Egress"_s, u"Steward briefing"_s);
        click(seen<oVIXButton>(u"Bake"_s));
        QTRY_VERIFY(!bake().isRunning() && bake().computedFrames() == 750);
        const QList<QPointF> before = bake().positions(700);
        onceOpen<VelmoMessageWidget>([this](VelmoMessageWidget *box) {
            keep(u"time-to-think"_s);
            auto *play = box->findChild<QWidget *>(u"lbDont"_s);
            QTRY_VERIFY(play->isEnabled());
            keep(u"question"_s);
            click(play);
        });
        click(seen<oVIXButton>(u"Bake"_s));
        QTRY_VERIFY(page()->isPlaying());
        QCOMPARE(bake().positions(700), before);
        QCOMPARE(bake().computedFrames(), 750);

        onceOpen<VelmoMessageWidget>([this](VelmoMessageWidget *box) {
            QTRY_VERIFY(box->findChild<QWidget *>(u"lbDont"_s)->isEnabled());
            RealInput::key(u"Return"_s);
        });
        click(seen<oVIXButton>(u"Bake"_s));
        QTRY_VERIFY(!bake().isRunning() && bake().computedFrames() == 750);
        QVERIFY(!page()->isPlaying());
        QCOMPARE(bake().positions(700), before); // the same crowd walks the same way
    }

    void aBakeIsStoppedAndWatchedMeanwhile()
    {
        openScene(u"Stadium Egress"_s, u"Full time, all gates"_s);
        click(seen<oVIXButton>(u"Bake"_s));
        QTRY_VERIFY(bake().isRunning() && bake().computedFrames() > 50);
        keep(u"baking"_s);
        click(seen<OvixSvgButton>(u"Play"_s));
        QTRY_VERIFY(timebar()->getCurrentPlayValue() > 5);
        QVERIFY(bake().isRunning());
        keep(u"playing-meanwhile"_s);
        click(seen<oVIXButton>(u"Stop baking"_s));
        QTRY_VERIFY(!bake().isRunning());
        QVERIFY(bake().computedFrames() < bake().frameCount());
        QVERIFY(page()->findChild<StatusLine *>()->text().startsWith(u"Baking was stopped after"_s));
        QVERIFY(seen<oVIXButton>(u"Bake"_s));
        keep(u"stopped"_s);
    }

private:
    ScenePage *page() const { return window()->scenePage(); }
    oVIXTimebarWidget *timebar() const { return page()->timebar(); }
    const Bake &bake() const { return page()->bake(); }
    OvixMovableLabel *marker(const QString &name) { return seen<OvixMovableLabel>(name, timebar()); }

    /// Takes hold of a crop marker where no other lies over it.
    void dragMarker(const QString &name, int way)
    {
        const OvixMovableLabel *dragged = marker(name);
        const int inwards = name == u"Crop start"_s ? dragged->width() / 4 : -dragged->width() / 4;
        const QPoint hold = middleOf(dragged) + QPoint(inwards, 0);
        RealInput::moveTo(hold); // which makes it show
        RealInput::drag(hold, hold + QPoint(way, 0));
    }
    QImage viewOnScreen() const { return page()->view()->grab().toImage(); }
};

VELMO_TEST_MAIN(BakingJourney)
#include "BakingJourney.moc"
