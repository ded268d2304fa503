#include "support/TestCase.h"

#include "values/PieModel.h"
#include "values/PieRing.h"
#include "values/PieShares.h"

#include <QSortFilterProxyModel>
#include <QStandardItemModel>
#include <QTest>

#include <cmath>
#include <limits>
#include <numeric>
#include <tuple>

using namespace Qt::StringLiterals;
using PieRing::Arc;
using PieRing::Edge;
using Shares = QList<float>;

namespace {

constexpr float noNumber = std::numeric_limits<float>::quiet_NaN();
constexpr float infinity = std::numeric_limits<float>::infinity();

void fill(QStandardItemModel &model, const Shares &shares, const QList<int> &locked = {})
{
    model.setRowCount(int(shares.size()));
    model.setColumnCount(1);
    for (int row = 0; row < int(shares.size()); ++row)
        model.setData(model.index(row, 0), shares[row], Qt::EditRole);
    for (const int row : locked)
        model.setData(model.index(row, 0), true, PieModel::LockedRole);
}

Shares sharesOf(const QAbstractItemModel &model)
{
    Shares shares;
    for (int row = 0; row < model.rowCount(); ++row)
        shares << model.index(row, 0).data(Qt::EditRole).toFloat();
    return shares;
}

std::vector<PieRing::Slice> slicesOf(const Shares &shares)
{
    std::vector<PieRing::Slice> slices;
    for (const float share : shares)
        slices.push_back({share, false});
    return slices;
}

} // namespace

class PieChartRulesTest : public TestCase
{
    Q_OBJECT

private slots:
    void redistributes_data()
    {
        QTest::addColumn<Shares>("before");
        QTest::addColumn<QList<int>>("locked");
        QTest::addColumn<int>("row");
        QTest::addColumn<float>("amount");
        QTest::addColumn<Shares>("after");
        const QList<int> none;
        QTest::newRow("shrinks") << Shares{50, 30, 20} << none << 0 << -10.0F << Shares{40, 35, 25};
        QTest::newRow("grows") << Shares{30, 50, 20} << none << 1 << 10.0F << Shares{25, 60, 15};
        QTest::newRow("one on the floor") << Shares{50, 45, 5} << none << 0 << 10.0F << Shares{68, 31, 1};
        QTest::newRow("one after the other") << Shares{80, 10, 6, 4} << none << 0 << 12.0F << Shares{97, 1, 1, 1};
        QTest::newRow("two at once") << Shares{58, 30, 6, 6} << none << 0 << 18.0F << Shares{96, 2, 1, 1};
        QTest::newRow("locked") << Shares{50, 30, 20} << QList<int>{1} << 0 << 10.0F << Shares{60, 30, 10};
        QTest::newRow("all others locked")
            << Shares{50, 30, 10} << QList<int>{1, 2} << 0 << -20.0F << Shares{60, 30, 10};
        QTest::newRow("alone") << Shares{40} << none << 0 << -20.0F << Shares{100};
        QTest::newRow("never below the floor") << Shares{50, 60, 60} << none << 0 << 1.0F << Shares{1, 59.5F, 59.5F};
        QTest::newRow("no numbers") << Shares{50, noNumber, infinity} << none << 0 << -10.0F << Shares{90, 5, 5};
        QTest::newRow("negative") << Shares{50, 60, -10} << none << 0 << 10.0F << Shares{38, 61, 1};
        QTest::newRow("no such row") << Shares{50, 50} << none << 2 << 10.0F << Shares{50, 50};
    }
    void redistributes()
    {
        QFETCH(Shares, before);
        QFETCH(QList<int>, locked);
        QFETCH(int, row);
        QFETCH(float, amount);
        QFETCH(Shares, after);
        QStandardItemModel model;
        fill(model, before, locked);
        const std::optional<float> result = PieModel::redistribute(&model, row, amount);
        QCOMPARE(result.has_value(), row < before.size());
        QCOMPARE(sharesOf(model), after);
        if (result)
            QCOMPARE(*result, after[row]);
    }

    void endsWhateverTheShares()
    {
        const Shares odd{noNumber, infinity, -infinity, -1e30F, 1e30F, 0.0F, -0.0F, 1.0F, 250.0F, 1e-30F};
        for (const float amount : {-1e30F, -100.0F, -1e-30F, 0.0F, 1e-3F, 100.0F, 1e30F}) {
            QStandardItemModel model;
            fill(model, odd + odd + odd);
            const std::optional<float> result = PieModel::redistribute(&model, 3, amount);
            QVERIFY(result && *result >= 1.0F);
        }
        PieModel::redistribute(nullptr, 0, 1.0F);
    }

    void followsRowsThatMoveWhileItWrites()
    {
        QStandardItemModel source;
        fill(source, {50, 30, 15, 5});
        QSortFilterProxyModel sorted;
        sorted.setSourceModel(&source);
        sorted.setSortRole(Qt::EditRole);
        sorted.sort(0, Qt::DescendingOrder);
        // Each of the others becomes the largest in turn.
        PieModel::redistribute(&sorted, 0, -48.0F);
        QCOMPARE(sharesOf(source), (Shares{2, 46, 31, 21}));
    }

    void leavesWhatIsGoneOrRefused()
    {
        QStandardItemModel model;
        fill(model, {50, 20, 20, 10});
        connect(
            &model, &QAbstractItemModel::dataChanged, &model, [&] { model.removeRow(2); }, Qt::SingleShotConnection);
        QCOMPARE(PieModel::redistribute(&model, 0, 9.0F), 76.0F);
        QCOMPARE(sharesOf(model), (Shares{76, 17, 7}));
        connect(
            &model, &QAbstractItemModel::dataChanged, &model, [&] { model.clear(); }, Qt::SingleShotConnection);
        QVERIFY(!PieModel::redistribute(&model, 0, 9.0F));

        class Stubborn : public QStandardItemModel
        {
        public:
            int refused = -1;
            bool setData(const QModelIndex &index, const QVariant &value, int role) override
            {
                return index.row() != refused && QStandardItemModel::setData(index, value, role);
            }
        } stubborn;
        fill(stubborn, {50, 30, 20});
        stubborn.refused = 1;
        QCOMPARE(PieModel::redistribute(&stubborn, 0, 10.0F), 55.0F);
        QCOMPARE(sharesOf(stubborn), (Shares{55, 30, 15}));
        stubborn.refused = 0;
        QVERIFY(!PieModel::setLocked(&stubborn, 0, true));
        QCOMPARE(PieModel::redistribute(&stubborn, 0, 10.0F), 55.0F);
    }

    void makesEqualAboveTheFloor()
    {
        QStandardItemModel model;
        fill(model, {99.5F, 30, 20, 10}, {0});
        QVERIFY(PieModel::makeEqual(&model));
        QCOMPARE(sharesOf(model), (Shares{99.5F, 1, 1, 1}));
        model.setData(model.index(1, 0), u"Guards"_s, Qt::AccessibleTextRole);
        QCOMPARE(PieModel::name(&model, 1), u"Guards"_s);
        QCOMPARE(PieModel::name(&model, 2), u"Slice 3"_s);
        QCOMPARE(PieModel::name(&model, 4), QString());
    }

    void readsPointsOnTheRing()
    {
        const int farAway = std::numeric_limits<int>::max();
        for (const auto &[point, angle, onRing] :
             {std::tuple(QPoint(25, 100), 5760, true), std::tuple(QPoint(100, 50), 1440, true),
              std::tuple(QPoint(200, 100), 2880, true), std::tuple(QPoint(100, 201), 4320, false),
              std::tuple(QPoint(149, 100), 2880, false), std::tuple(QPoint(farAway, 100), 2880, false)}) {
            // The middle of an odd size is rounded down.
            const PieRing::Polar polar = PieRing::polar(point, QSize(201, 200));
            QCOMPARE(polar.angle, angle);
            QCOMPARE(PieRing::isOnRing(polar.distance), onRing);
        }
    }

    void laysSlicesRoundTheRing()
    {
        std::vector<Arc> arcs = PieRing::arcs(slicesOf({25, 50, 25}), 0);
        QCOMPARE(arcs[0].start, 1440); // twelve o'clock, counterclockwise from three
        QCOMPARE(PieRing::startAngle(arcs[0]), 1440);
        QCOMPARE(PieRing::endAngle(arcs[0]), 2880);
        QCOMPARE(PieRing::endAngle(arcs[1]), 0);
        QCOMPARE(PieRing::endAngle(arcs[2]), 1440);
        QCOMPARE(PieRing::sliceAt(arcs, 5760), 2);
        QCOMPARE(PieRing::sliceAt(arcs, 5759), 1);
        QCOMPARE(PieRing::sliceAt(PieRing::arcs(slicesOf({25, 50, 25}), -1), 5759), 2);

        arcs = PieRing::arcs(slicesOf({25, noNumber, -5, 25}), 0);
        QCOMPARE(PieRing::sliceAt(arcs, 2880), 3);
        QCOMPARE(PieRing::sliceAt(arcs, 5000), -1);
        QCOMPARE(PieRing::sliceAt(PieRing::arcs(slicesOf({100}), 0), 77), 0);
        QCOMPARE(PieRing::arcs(slicesOf({150, 50}), 0)[1].span, 1440);
        QVERIFY(PieRing::arcs({}, 0).empty());

        const std::vector<Arc> many = PieRing::arcs(slicesOf(Shares(1000, 0.1F)), 17);
        QCOMPARE(std::accumulate(many.begin(), many.end(), 0, [](int sum, const Arc &arc) { return sum + arc.span; }),
                 PieRing::FullTurn);
        for (size_t i = 1; i < many.size(); ++i)
            QCOMPARE(PieRing::startAngle(many[i]), PieRing::endAngle(many[i - 1]));
        QCOMPARE(PieRing::boundingRect(PieRing::arcs(slicesOf({25}), 0)[0], QSize(200, 200)), QRect(100, 0, 101, 101));
    }

    void grabsEdges()
    {
        const Arc arc = PieRing::arcs(slicesOf({75, 25}), 0)[0]; // 1440 to 0
        for (const auto &[angle, edge] :
             {std::pair(1440 - 160, Edge::Start), std::pair(1440 + 160, Edge::Start), std::pair(1440 + 161, Edge::None),
              std::pair(5760 - 160, Edge::End), std::pair(160, Edge::End), std::pair(161, Edge::None)})
            QCOMPARE(PieRing::edgeAt(arc, angle), edge);
        QCOMPARE(PieRing::edgeAt(PieRing::arcs(slicesOf({100}), 0)[0], 1440), Edge::Start);
        QCOMPARE(PieRing::shortestTurn(5750, 10), 20);
        QCOMPARE(PieRing::shortestTurn(10, 5750), -20);

        PieRing::Drag end(arc, 5750, 75);
        QVERIFY(end.moveTo(566) && !end.moveTo(566)); // across the seam
        QCOMPARE(end.share(), 85.0);
        QVERIFY(end.moveTo(566 - 2000) && end.moveTo(566 - 4000));
        QCOMPARE(end.share(), 75 + (576 - 4000) * 0.0625 / 3.6);
        PieRing::Drag start(arc, 1440, 75);
        start.moveTo(1440 - 576);
        QCOMPARE(start.share(), 85.0);
        QCOMPARE(start.slip(PieRing::arcs(slicesOf({85, 15}), 0)[0]), -576);
        QVERIFY(!PieRing::Drag(arc, 3000, 75).moveTo(3100));
    }
};

VELMO_TEST_MAIN(PieChartRulesTest)
#include "PieChartRulesTest.moc"
