#include "desktop/Journey.h"
#include "desktop/RealInput.h"

#include "OvixMovableLabel.h"
#include "OvixSvgButton.h"
#include "VelmoCurtainWidget.h"
#include "oVIXButton.h"
#include "oVIXCombo.h"
#include "oVIXPieChartWidget.h"
#include "oVIXSliderBar.h"
#include "oVIXSliderWidget.h"
#include "oVIXTimebarWidget.h"
#include "panels/CrowdEditor.h"
#include "panels/LibraryPanel.h"
#include "panels/ParametersPanel.h"
#include "window/MoverAt.h"
#include "window/ScenePage.h"
#include "window/SceneView.h"
#include "window/WorkstationWindow.h"

#include <QDoubleSpinBox>
#include <QListView>
#include <QTest>

#include <algorithm>
#include <cmath>
#include <numbers>

using namespace Qt::StringLiterals;

class EditingJourney : public Journey
{
    Q_OBJECT

private slots:
    void everyNumberArrivesInTheScene()
    {
        openScene(u"Stadium Egress"_s, u"Steward briefing"_s);
        QCOMPARE(people().size(), 12);
        const oVIXSliderWidget *count = slider(u"People"_s);
        auto *box = seen<QSpinBox>(u"People"_s, count);
        enter(box, u"40"_s);
        QTRY_COMPARE(people().size(), 40);
        click(seen<OvixSvgButton>(u"Increase"_s, count));
        QTRY_COMPARE(people().size(), 50);
        RealInput::wheel(middleOf(box), -2);
        QTRY_COMPARE(people().size(), 30);
        click(box);
        RealInput::key(u"Up"_s);
        QTRY_COMPARE(people().size(), 40);
        RealInput::key(u"ctrl+a"_s);
        RealInput::type(u"60"_s);
        click(seen<QDoubleSpinBox>(u"Seed"_s)); // another field takes over what has been typed
        QTRY_COMPARE(people().size(), 60);
        dragBar(count, 0.1, 0.25);
        QTRY_COMPARE(people().size(), qsizetype(count->value()));
        QVERIFY2(std::abs(people().size() - 500) < 20, qPrintable(QString::number(people().size())));
        keep(u"people"_s);
        enter(box, u"12"_s);
        QTRY_COMPARE(people().size(), 12);

        const oVIXSliderWidget *speed = slider(u"Speed"_s);
        dragBar(speed, speed->value() / 4, 0.9);
        QTRY_VERIFY(speed->value() > 3.4 && speed->valueMin() == 0.8);
        QTRY_VERIFY(slowest() >= 0.8 && fastest() > 1.6);
        dragBar(speed, 0.2, 0.7);
        QTRY_VERIFY(speed->valueMin() > 2.6);
        QTRY_VERIFY(slowest() >= speed->valueMin() && fastest() <= speed->value());
        enter(speed->findChild<QDoubleSpinBox *>(u"spinMinDouble"_s), u"1.5"_s);
        QTRY_VERIFY(slowest() < 2.6 && slowest() >= 1.5);
        keep(u"speed"_s);

        const double before = people().first().preferredSpeed;
        click(seen<OvixSvgButton>(u"Increase"_s, slider(u"Seed"_s)));
        QTRY_VERIFY(people().first().preferredSpeed != before);
        click(seen<OvixSvgButton>(u"Decrease"_s, slider(u"Seed"_s)));
        QTRY_COMPARE(people().first().preferredSpeed, before);

        QList<QPointF> last = walked();
        dragBar(slider(u"Spacing"_s), 0.3, 0.95);
        QCOMPARE(page()->bake().computedFrames(), 0);
        QVERIFY(walked() != last);
        last = page()->bake().positions(400);
        enter(seen<QSpinBox>(u"Turn rate"_s), u"20"_s);
        QCOMPARE(page()->bake().computedFrames(), 0);
        QVERIFY(walked() != last);
        keep(u"all"_s);
    }

    void theSharesOfTheTypesArriveInTheScene()
    {
        openScene(u"Central Station"_s, u"Platform 4 transfer"_s);
        const auto *pie = seen<oVIXPieChartWidget>(u"Shares of the types"_s);
        QCOMPARE(countOf(u"adult"_s), 70);
        keep(u"before"_s);
        // The first slice begins at twelve o'clock; its end is dragged to six o'clock.
        RealInput::drag(onRing(pie, 70.0 / 88), onRing(pie, 0.5));
        QTRY_VERIFY(std::abs(countOf(u"adult"_s) - 44) <= 2);
        QCOMPARE(people().size(), 88);
        keep(u"dragged"_s);

        enter(seen<QDoubleSpinBox>(u"Share"_s, pie), u"75"_s);
        QTRY_COMPARE(countOf(u"adult"_s), 66);
        click(seen<OvixSvgButton>(u"Lock"_s, pie));
        RealInput::click(onRing(pie, 0.8)); // child
        QTRY_VERIFY(seen<QDoubleSpinBox>(u"Share"_s, pie)->isEnabled());
        enter(seen<QDoubleSpinBox>(u"Share"_s, pie), u"20"_s);
        QTRY_VERIFY(countOf(u"child"_s) >= 17);
        QCOMPARE(countOf(u"adult"_s), 66); // which is locked
        keep(u"locked"_s);

        onceOpenChoose(u"Unlock all"_s);
        RealInput::contextClick(onRing(pie, 0.3));
        onceOpenChoose(u"Make all equal"_s);
        RealInput::contextClick(onRing(pie, 0.3));
        for (const QString &type : {u"adult"_s, u"child"_s, u"senior"_s, u"wheelchair"_s})
            QTRY_COMPARE(countOf(type), 22);
        keep(u"equal"_s);
    }

    void theViewIsSetUp()
    {
        openScene(u"Central Station"_s, u"Platform 4 transfer"_s);
        QImage before = view()->grab().toImage();
        const auto changesThePicture = [this, &before] {
            const bool changed = QTest::qWaitFor([&] { return view()->grab().toImage() != before; });
            before = view()->grab().toImage();
            return changed;
        };
        for (const auto &[combo, choice] :
             {std::pair(u"Colour by"_s, u"Type"_s), std::pair(u"Colour by"_s, u"Goal"_s),
              std::pair(u"Vehicles"_s, u"NO"_s), std::pair(u"Goals"_s, u"YES"_s), std::pair(u"Zoom"_s, u"200 %"_s)}) {
            onceOpenChoose(choice);
            click(seen<oVIXCombo>(combo));
            QVERIFY2(changesThePicture(), qPrintable(combo + u' ' + choice));
        }
        QCOMPARE(view()->options().zoom, 2.0);
        QVERIFY(view()->options().goals && !view()->options().vehicles);
        keep(u"combos"_s);

        RealInput::wheel(middleOf(view()), -1);
        QTRY_COMPARE(seen<oVIXCombo>(u"Zoom"_s)->getCurrentComboText(), u"160 %"_s);
        QVERIFY(changesThePicture());
        RealInput::drag(middleOf(view()), middleOf(view()) + QPoint(120, 60));
        QVERIFY(changesThePicture());
        click(seen<OvixSvgButton>(u"How dense they stand"_s));
        QVERIFY(changesThePicture());
        keep(u"density"_s);
        click(seen<OvixSvgButton>(u"Where people are"_s));
        QTRY_COMPARE(view()->options().mode, ViewOptions::Mode::Dots);

        const auto *list = window()->libraryPanel()->findChild<QListView *>();
        const QRect child = list->visualRect(list->model()->index(1, 0));
        RealInput::click(list->viewport()->mapToGlobal(child.center()));
        QTRY_COMPARE(view()->options().highlightedType, u"child"_s);
        keep(u"highlighted"_s);

        const auto *crowd = window()->parametersPanel()->crowd();
        auto *curtain = window()->parametersPanel()->findChildren<VelmoCurtainWidget *>().at(1);
        click(curtain->findChild<OvixSvgButton *>());
        QTRY_VERIFY(!crowd->isVisible());
        keep(u"curtain"_s);
        click(curtain->findChild<OvixSvgButton *>());
        QTRY_VERIFY(crowd->isVisible());
    }

    void theTimelineShowsWhatItsMarkersSay()
    {
        openScene(u"Stadium Egress"_s, u"Steward briefing"_s);
        walked();
        // A pixel of the timeline stands for more than one frame.
        const auto isShown = [this](int frame) {
            const int shown = page()->timebar()->getCurrentPlayValue();
            return std::abs(shown - frame) < 3 && people().first().position == page()->bake().positions(shown).first();
        };
        RealInput::doubleClick(middleOf(marker(u"Current frame"_s)));
        QTRY_VERIFY(marker(u"Current frame"_s)->isEditing());
        RealInput::type(u"321"_s);
        keep(u"typing"_s);
        RealInput::key(u"Return"_s);
        QTRY_VERIFY(isShown(321));
        RealInput::drag(middleOf(marker(u"Current frame"_s)), middleOf(marker(u"Current frame"_s)) + QPoint(80, 0));
        QTRY_VERIFY(page()->timebar()->getCurrentPlayValue() > 350);
        QVERIFY(isShown(page()->timebar()->getCurrentPlayValue()));
        keep(u"dragged"_s);

        RealInput::doubleClick(middleOf(marker(u"Crop end"_s)));
        QTRY_VERIFY(marker(u"Crop end"_s)->isEditing());
        RealInput::type(u"200"_s);
        RealInput::key(u"Return"_s);
        QTRY_VERIFY2(std::abs(page()->timebar()->getCropEndValue() - 200) < 3,
                     qPrintable(QString::number(page()->timebar()->getCropEndValue())));
        QTRY_VERIFY(isShown(0)); // the crop's start
        keep(u"cropped"_s);
    }

private:
    ScenePage *page() const { return window()->scenePage(); }
    SceneView *view() const { return page()->view(); }
    const QList<SceneMover> &people() const { return view()->scene().people; }
    oVIXSliderWidget *slider(const QString &name) { return seen<oVIXSliderWidget>(name, window()->parametersPanel()); }
    OvixMovableLabel *marker(const QString &name) { return seen<OvixMovableLabel>(name, page()->timebar()); }

    double slowest() const { return std::ranges::min(people(), {}, &SceneMover::preferredSpeed).preferredSpeed; }
    double fastest() const { return std::ranges::max(people(), {}, &SceneMover::preferredSpeed).preferredSpeed; }
    qsizetype countOf(const QString &type) const { return std::ranges::count(people(), type, &SceneMover::type); }

    void dragBar(const oVIXSliderWidget *slider, double from, double to)
    {
        const auto *bar = slider->findChild<oVIXSliderBar *>();
        const auto at = [bar](double share) {
            return bar->mapToGlobal(QPoint(qRound(share * bar->width()), bar->height() / 2));
        };
        RealInput::drag(at(from), at(to));
    }
    /// A point of the ring, as a share of the way round it from twelve o'clock.
    static QPoint onRing(const oVIXPieChartWidget *pie, double share)
    {
        const double angle = 2 * std::numbers::pi * share;
        return middleOf(pie) + QPointF(75 * std::sin(angle), -75 * std::cos(angle)).toPoint();
    }
    /// Where everybody is at frame 400 of a new bake.
    QList<QPointF> walked()
    {
        click(seen<oVIXButton>(u"Bake"_s));
        waitFor([this] { return !page()->bake().isRunning() && page()->bake().computedFrames() > 400; }, "the bake");
        return page()->bake().positions(400);
    }
};

VELMO_TEST_MAIN(EditingJourney)
#include "EditingJourney.moc"
