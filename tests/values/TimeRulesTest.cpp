#include "support/TestCase.h"

#include "values/MarkerScale.h"
#include "values/ProgressGeometry.h"
#include "values/TimebarRules.h"

#include <QTest>

#include <cmath>
#include <limits>

namespace {

constexpr int lowest = std::numeric_limits<int>::min();
constexpr int highest = std::numeric_limits<int>::max();

} // namespace

/// The arithmetic of markers, bars and the timebar, on plain numbers.
class TimeRulesTest : public TestCase
{
    Q_OBJECT

private slots:
    void convertsAnyNumber()
    {
        QCOMPARE(saturatedInt(-2.9), -2);
        QCOMPARE(saturatedInt(std::nan("")), 0);
        QCOMPARE(saturatedInt(-HUGE_VAL), lowest);
        QCOMPARE(saturatedInt(2147483647.5), highest);
    }

    void placesMarkers()
    {
        struct Case
        {
            MarkerScale scale;
            int value;
            int position;
            int valueThere;
        };
        for (const auto &[scale, value, position, valueThere] :
             {Case{{0, 100, 50}, 25, 50, 25}, Case{{20, 860, 100000}, 200, 21, 119},
              Case{{-20, 979, 1200}, 1200, 979, 1200}, Case{{0, 100, 0}, 0, 0, 0}, // no values
              Case{{70, 70, 50}, 25, 70, 0}, // no way
              Case{{100, 0, 50}, 10, 80, 10}, // too narrow
              Case{{lowest, highest, highest}, highest, highest, highest}}) {
            QCOMPARE(scale.positionOf(value), position);
            QCOMPARE(scale.valueAt(position), valueThere);
        }
        const MarkerScale scale = {10, 40, 10};
        QCOMPARE(scale.valueAt(9), -1);
        QCOMPARE(scale.draggedValueAt(39), 9.0F);
        QCOMPARE((MarkerScale{5, 5, 9}.draggedValueAt(5)), 0.0F);
        QVERIFY(scale.hasValue(0) && scale.hasValue(10) && !scale.hasValue(11) && !scale.hasValue(-1));
        QCOMPARE(scale.nearestPosition(0), 10);
        QCOMPARE(scale.nearestPosition(99), 40);
        QCOMPARE((MarkerScale{40, 10, 10}.nearestPosition(99)), 40);
    }

    void drawsBandsWithinWhatIsDone()
    {
        struct Case
        {
            BarState bar;
            QList<double> ends; // done, crop, played, left and right of each
        };
        for (const auto &[bar, ends] :
             {Case{{100, 40, 10, 60, 50}, {5, 85, 25, 85, 25, 85}},
              Case{{100, 40, 10, 60, 20}, {5, 85, 25, 85, 25, 45}},
              Case{{100, 40, 50, 60, 55}, {5, 85, 105, 105, 105, 105}}, Case{{0, 0, 10, 60, 20}, {5, 5, 5, 5, 5, 5}},
              Case{{100, -1, lowest, highest, highest}, {5, 5, 5, 5, 5, 5}},
              Case{{highest, highest, 0, highest, highest}, {5, 205, 5, 205, 5, 205}}}) {
            const auto [done, crop, played] = barBands(bar, 5, 200);
            QCOMPARE((QList<double>{done.left, done.right, crop.left, crop.right, played.left, played.right}), ends);
        }
    }

    void picksAndFillsByRatio()
    {
        QCOMPARE(pickedBarValue(300, 300, 100), 100);
        QCOMPARE(pickedBarValue(-1, 300, 100), 0);
        QCOMPARE(pickedBarValue(299, 300, 100), 99);
        QCOMPARE(pickedBarValue(5, 0, 100), 0);
        QCOMPARE(pickedBarValue(std::nan(""), 300, 100), 0);
        QCOMPARE(floatingBarWidth(1100, 0), 100);
        QCOMPARE(floatingBarWidth(1100, 100), 1100);
        QCOMPARE(floatingBarWidth(1100, -11), 0);
        QCOMPARE(floatingBarWidth(1100, highest), QWIDGETSIZE_MAX);
        QCOMPARE(floatingBarWidth(0, 50), 0);
    }

    void playsWhatIsComputedInsideTheCrop()
    {
        QCOMPARE(nextPlayValue(5, 30, {50, 100, 0, 100}), 30);
        QCOMPARE(nextPlayValue(30, 80, {50, 100, 0, 100}), 30);
        QCOMPARE(nextPlayValue(30, 101, {101, 100, 0, 200}), 30);
        QCOMPARE(nextPlayValue(30, 80, {50, 100, 60, 70}), 60);
        QCOMPARE(nextPlayValue(30, 45, {50, 100, 10, 40}), 40);
        QCOMPARE(nextPlayValue(30, 45, {50, 100, 60, 40}), 40); // the end wins
        QVERIFY(jumpsToCropStart(9, {10, 20}) && jumpsToCropStart(21, {10, 20}));
        QVERIFY(!jumpsToCropStart(10, {10, 20}) && !jumpsToCropStart(20, {10, 20}));
    }
};

VELMO_TEST_MAIN(TimeRulesTest)
#include "TimeRulesTest.moc"
