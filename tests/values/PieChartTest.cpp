#include "support/Events.h"
#include "support/Gestures.h"
#include "support/Picture.h"
#include "support/TestCase.h"
#include "support/Told.h"

#include "foundation/OvixSvgButton.h"
#include "values/oVIXPieChartWidget.h"
#include "values/oVIXSliderWidget.h"

#include <QAccessible>
#include <QContextMenuEvent>
#include <QDoubleSpinBox>
#include <QHelpEvent>
#include <QMenu>
#include <QMouseEvent>
#include <QRandomGenerator>
#include <QRegularExpression>
#include <QSignalSpy>
#include <QStandardItemModel>
#include <QTest>
#include <QtMath>

#include <limits>

using namespace Qt::StringLiterals;
using Shares = QList<float>;

namespace {

constexpr int lockedRole = Qt::UserRole + 1;

/// Counts the shares that are written.
class ShareModel : public QStandardItemModel
{
public:
    explicit ShareModel(const Shares &shares) : QStandardItemModel(int(shares.size()), 1)
    {
        for (int row = 0; row < int(shares.size()); ++row)
            QStandardItemModel::setData(index(row, 0), shares[row], Qt::EditRole);
    }

    bool setData(const QModelIndex &index, const QVariant &value, int role) override
    {
        written += role == Qt::EditRole ? 1 : 0;
        return !readOnly && QStandardItemModel::setData(index, value, role);
    }

    void lock(int row, bool locked = true) { setData(index(row, 0), locked, lockedRole); }
    bool isLocked(int row) const { return index(row, 0).data(lockedRole).toBool(); }
    Shares shares() const
    {
        Shares shares;
        for (int row = 0; row < rowCount(); ++row)
            shares << index(row, 0).data(Qt::EditRole).toFloat();
        return shares;
    }

    int written = 0;
    bool readOnly = false;
};

/// Degrees clockwise from twelve o'clock.
QPoint onRing(double degrees, double distance = 75)
{
    const double angle = qDegreesToRadians(degrees - 90);
    return QPoint(140, 140) + QPointF(distance * std::cos(angle), distance * std::sin(angle)).toPoint();
}

/// A chart with its model on screen.
struct Shown
{
    explicit Shown(const Shares &shares, int selected = -1) : model(shares)
    {
        chart->resize(280, 280);
        chart->setModel(&model);
        chart->onSelectionChanged(selected);
        Gestures::show(chart);
    }
    ~Shown() { delete chart; }
    Q_DISABLE_COPY_MOVE(Shown)

    void press(QPoint point) const { Gestures::send(chart, QEvent::MouseButtonPress, point); }
    void drag(QPoint point) const { Gestures::send(chart, QEvent::MouseMove, point); }
    void hover(QPoint point) const { Gestures::send(chart, QEvent::MouseMove, point, Qt::NoButton); }
    void release(QPoint point) const { Gestures::send(chart, QEvent::MouseButtonRelease, point); }
    void click(QPoint point) const
    {
        press(point);
        if (chart)
            release(point);
    }

    oVIXSliderWidget *slider() const { return chart->findChild<oVIXSliderWidget *>(); }
    QDoubleSpinBox *box() const { return chart->findChild<QDoubleSpinBox *>(u"lateralSpin"_s); }
    OvixSvgButton *lock() const { return chart->findChild<OvixSvgButton *>(QString(), Qt::FindDirectChildrenOnly); }
    QAction *action(int index) const
    {
        QContextMenuEvent event(QContextMenuEvent::Keyboard, {}, {});
        QCoreApplication::sendEvent(chart, &event);
        return chart->findChildren<QMenu *>().constLast()->actions().at(index);
    }

    ShareModel model;
    QPointer<oVIXPieChartWidget> chart = new oVIXPieChartWidget(nullptr);
};

} // namespace

class PieChartTest : public TestCase
{
    Q_OBJECT

private slots:
    void selectsWhatIsClicked()
    {
        Shown shown({50, 24.999F, 25.001F}); // the box rounds
        shown.model.lock(2);
        QSignalSpy selected(shown.chart, &oVIXPieChartWidget::indexChanged);
        QSignalSpy finished(shown.chart, &oVIXPieChartWidget::valueFinished);
        QVERIFY(!shown.slider()->isVisible());
        shown.click(onRing(200));
        shown.click(onRing(300, 49));
        shown.click(onRing(300, 102));
        shown.click(onRing(300));
        QCOMPARE(selected, (QList<QVariantList>{{1}, {2}}));
        QVERIFY(shown.lock()->isChecked() && !shown.slider()->isEnabled());
        QCOMPARE(shown.slider()->value(), 25.0);
        shown.chart->setEnabled(false);
        shown.click(onRing(200));
        shown.chart->setEnabled(true);
        shown.chart->onSelectionChanged(3);
        QCOMPARE(selected.size(), 2);
        shown.chart->onSelectionChanged(-7);
        QCOMPARE(selected.last(), QVariantList{-1});
        QVERIFY(!shown.slider()->isVisible());
        QCOMPARE(finished.size(), 0);
    }

    void typingRedistributesOnce()
    {
        Shown shown({50, 45, 5}, 0);
        QSignalSpy changed(shown.chart, &oVIXPieChartWidget::valueChanged);
        QSignalSpy finished(shown.chart, &oVIXPieChartWidget::valueFinished);
        shown.model.written = 0;
        shown.box()->setValue(60);
        QCOMPARE(shown.model.shares(), (Shares{68, 31, 1}));
        QCOMPARE(shown.slider()->value(), 68.0);
        QCOMPARE(changed, QList<QVariantList>{{68.0}});
        QCOMPARE(shown.model.written, 3);

        shown.box()->stepUp(); // 69 of 68: 1 stays on the floor
        QCOMPARE(finished.size(), 0);
        Gestures::click(shown.slider()->findChild<OvixSvgButton *>(u"lbSub"_s));
        QCOMPARE(finished.size(), 1);
        Gestures::focus(shown.box());
        shown.box()->stepDown();
        shown.click(onRing(180)); // the box keeps the keyboard, but not the edit
        QCOMPARE(finished.size(), 2);
        shown.chart->onSelectionChanged(0);
        QCOMPARE(finished.size(), 2);
        shown.model.lock(0);
        QVERIFY(!shown.slider()->isEnabled());
        const Shares before = shown.model.shares();
        shown.chart->onSpinboxValueChanged(20);
        QCOMPARE(shown.model.shares(), before);
    }

    void refusesToGoBelowTheFloor()
    {
        Shown shown({1, 59, 40}, 0);
        shown.model.written = 0;
        shown.box()->setValue(0.5);
        QCOMPARE(shown.slider()->value(), 1.0);
        for (const double nothing :
             {1.000001, std::numeric_limits<double>::quiet_NaN(), std::numeric_limits<double>::infinity()})
            shown.chart->onSpinboxValueChanged(nothing);
        QCOMPARE(shown.model.written, 0);
        shown.chart->onSpinboxValueChanged(1e9);
        QCOMPARE(shown.model.shares(), (Shares{98, 1, 1}));
    }

    void dragsAnEdge()
    {
        Shown shown({50, 30, 20}, 0);
        Told told(shown.chart.data());
        shown.press(onRing(175));
        QCOMPARE(told.taken(), QString());
        shown.model.written = 0;
        shown.drag(onRing(211));
        QVERIFY(qAbs(shown.model.shares()[0] - 60) < 0.5F);
        QVERIFY(qAbs(shown.model.shares()[1] - 25) < 0.5F);
        QCOMPARE(shown.model.written, 3);
        shown.drag(onRing(300, 120)); // beside the ring
        QCOMPARE(shown.model.written, 3);
        shown.release(onRing(250, 120));
        QCOMPARE(told.taken().remove(QRegularExpression(u" [.0-9]+"_s)),
                 u"valueStarted, valueChanged, valueFinished"_s);

        // The start edge, outwards, across the seam at nine o'clock; the other edge stays where it is.
        const double before = shown.slider()->value();
        shown.press(onRing(355));
        for (const int degrees : {330, 300, 275, 268, 262})
            shown.drag(onRing(degrees));
        QVERIFY(qAbs(shown.slider()->value() - before - 93 / 3.6) < 0.5);
        shown.release(onRing(262));
        QCOMPARE(told.taken().count(u"valueChanged"_s), 5);
        for (const int degrees : {263, 230, 212})
            shown.click(onRing(degrees));
        QCOMPARE(told.taken(), u"indexChanged 2, indexChanged 1, indexChanged 0"_s);
    }

    void aDragThatHitsTheFloorRedistributesOnceAStep()
    {
        Shown shown({50, 45, 5}, 0);
        shown.press(onRing(180));
        shown.drag(onRing(216));
        QVERIFY(qAbs(shown.slider()->value() - 68) < 0.5);
        QCOMPARE(float(shown.slider()->value()), std::round(shown.model.shares()[0] * 100) / 100);
    }

    void startsNoDrag()
    {
        Shown shown({50, 30, 20}, 0);
        QSignalSpy started(shown.chart, &oVIXPieChartWidget::valueStarted);
        const auto tryAt = [&](QPoint from) {
            shown.press(from);
            shown.drag(onRing(200));
            shown.hover(onRing(300));
            shown.drag(onRing(200));
        };
        tryAt(onRing(90));
        tryAt(onRing(180, 45));
        tryAt(onRing(180, 103));
        shown.model.lock(0);
        tryAt(onRing(180));
        shown.chart->onSelectionChanged(-1);
        tryAt(onRing(180));
        QCOMPARE(started.size(), 0);

        // What ends a drag for good.
        shown.model.lock(0, false);
        QSignalSpy finished(shown.chart, &oVIXPieChartWidget::valueFinished);
        for (int end = 0; end < 3; ++end) {
            shown.chart->onSelectionChanged(0);
            shown.press(onRing(double(shown.model.shares()[0]) * 3.6));
            shown.drag(onRing(double(shown.model.shares()[0]) * 3.6 + 5));
            if (end == 0)
                shown.chart->setEnabled(false);
            else if (end == 1)
                shown.chart->hide();
            else
                shown.hover(onRing(200));
            QCOMPARE(finished.size(), end + 1);
            shown.chart->setEnabled(true);
            shown.chart->show();
            shown.drag(onRing(20));
        }
        QCOMPARE(started.size(), 3);
    }

    void locksAndUnlocks()
    {
        Shown shown({40, 30, 20, 10}, 1);
        QSignalSpy locked(shown.chart, &oVIXPieChartWidget::lockedChanged);
        Gestures::click(shown.lock());
        QVERIFY(shown.model.isLocked(1) && !shown.slider()->isEnabled());
        shown.action(0)->trigger();
        QVERIFY(!shown.model.isLocked(1) && shown.slider()->isEnabled() && !shown.lock()->isChecked());
        shown.model.readOnly = true;
        Gestures::click(shown.lock());
        QVERIFY(!shown.lock()->isChecked() && shown.slider()->isEnabled());
        shown.model.readOnly = false;
        shown.model.lock(0);
        shown.model.lock(1);
        shown.model.readOnly = true;
        shown.action(1)->trigger();
        shown.model.readOnly = false;
        QCOMPARE(locked.size(), 2);
        shown.action(1)->trigger();
        QVERIFY(!shown.model.isLocked(0) && !shown.model.isLocked(1) && shown.slider()->isEnabled());
        QCOMPARE(locked.size(), 3);

        shown.model.lock(0);
        QSignalSpy finished(shown.chart, &oVIXPieChartWidget::valueFinished);
        QSignalSpy changed(shown.chart, &oVIXPieChartWidget::valueChanged);
        shown.action(3)->trigger();
        QCOMPARE(shown.model.shares(), (Shares{40, 20, 20, 20}));
        QCOMPARE(shown.slider()->value(), 20.0);
        QCOMPARE(finished.size(), 1);
        QCOMPARE(changed, QList<QVariantList>{{20.0}});
        qDeleteAll(shown.chart->findChildren<QMenu *>());
    }

    void followsTheModel()
    {
        Shown shown({40, 30, 20, 10}, 2);
        QSignalSpy selected(shown.chart, &oVIXPieChartWidget::indexChanged);
        shown.model.removeRow(0);
        shown.model.setData(shown.model.index(1, 0), 33.0F, Qt::EditRole);
        QCOMPARE(shown.slider()->value(), 33.0);
        shown.model.lock(1);
        QVERIFY(shown.lock()->isChecked());
        shown.model.removeRow(1);
        QVERIFY(!shown.slider()->isVisible());
        shown.chart->onSelectionChanged(0);
        shown.model.clear();
        shown.chart->onSelectionChanged(0);
        QCOMPARE(selected, (QList<QVariantList>{{1}, {-1}, {0}, {-1}}));
        {
            ShareModel other({60, 40});
            shown.chart->setModel(&other);
            shown.chart->onSelectionChanged(1);
        }
        QCOMPARE(selected.last(), QVariantList{-1});
        QVERIFY(!shown.chart->model());
        shown.click(onRing(90));
        shown.chart->onSpinboxValueChanged(5);
        shown.chart->onLockButtonClicked();
        shown.action(3)->trigger();
        qDeleteAll(shown.chart->findChildren<QMenu *>());
        shown.chart->setModel(nullptr);
    }

    void takesWhatTheModelDoesMeanwhile()
    {
        Shown shown({40, 30, 20, 10}, 1);
        const auto once = [&](auto answer) {
            connect(&shown.model, &QAbstractItemModel::dataChanged, &shown.model, answer, Qt::SingleShotConnection);
        };
        once([&] { shown.chart->onSpinboxValueChanged(90); }); // comes while the rows are written
        shown.chart->onSpinboxValueChanged(36);
        QCOMPARE(shown.model.shares(), (Shares{38, 36, 18, 8}));
        once([&] { shown.model.lock(1); });
        shown.chart->onSpinboxValueChanged(39);
        QVERIFY(shown.lock()->isChecked() && !shown.slider()->isEnabled());
        shown.model.lock(1, false);
        shown.chart->onSpinboxValueChanged(36);
        once([&] { shown.model.removeRow(0); });
        shown.box()->setValue(45);
        QCOMPARE(shown.model.shares(), (Shares{80, 15, 5}));
        QCOMPARE(shown.slider()->value(), 80.0);
        once([&] {
            shown.model.clear();
            shown.chart->grab();
            shown.click(onRing(180));
        });
        shown.chart->onSpinboxValueChanged(20);
        QVERIFY(!shown.slider()->isVisible());
    }

    void mayBeDeletedFromItsSignals()
    {
        Shown shown({50, 30, 20}, 0);
        connect(&shown.model, &QAbstractItemModel::dataChanged, this, [&] { delete shown.chart; });
        shown.chart->onSpinboxValueChanged(40);
        QVERIFY(!shown.chart);

        auto *chart = new oVIXPieChartWidget(nullptr);
        auto *model = new ShareModel({50, 50});
        model->setParent(chart); // goes after the chart's own part
        chart->setModel(model);
        chart->onSelectionChanged(1);
        delete chart;
    }

    void holdsUnderRandomEvents()
    {
        const quint32 seed = QRandomGenerator::global()->generate();
        QRandomGenerator random(seed);
        Shown shown({40, 30, 20, 10}, 1);
        for (int step = 0; step < 600; ++step) {
            const int row = random.bounded(-1, 6);
            switch (random.bounded(9)) {
            case 0:
                shown.chart->onSelectionChanged(row);
                break;
            case 1:
                shown.chart->onSpinboxValueChanged(random.bounded(120.0));
                break;
            case 2:
                shown.lock()->click();
                break;
            case 3:
                shown.press(onRing(random.bounded(360)));
                break;
            case 4:
                shown.release(onRing(random.bounded(360)));
                break;
            case 5:
                shown.model.removeRow(row);
                break;
            case 6:
                shown.model.insertRow(0);
                break;
            case 7:
                shown.chart->grab();
                break;
            default:
                shown.drag(onRing(random.bounded(360), random.bounded(30, 110)));
                break;
            }
            for (const float share : shown.model.shares())
                QVERIFY2(share >= 0.0F && std::isfinite(share), qPrintable(u"seed %1"_s.arg(seed)));
        }
    }

    void showsItsStates()
    {
        Shown shown({50, 30, 20}, 0);
        const QColor accent(116, 211, 252);
        QCOMPARE(Picture::colourAt(shown.chart, onRing(45)), accent);
        const QColor other = Picture::colourAt(shown.chart, onRing(200));
        QVERIFY(other != accent && other != Picture::colourAt(shown.chart, onRing(340)));
        QCOMPARE(Picture::colourAt(shown.chart, onRing(45, 45)).alpha(), 0);

        const auto picture = [&] { return Picture::of(shown.chart); };
        const QImage plain = picture();
        shown.hover(onRing(177));
        const QImage grabZone = picture();
        shown.hover(onRing(300));
        const QImage hovered = picture();
        QVERIFY(plain != grabZone && grabZone != hovered && plain != hovered);
        Gestures::leave();
        QEvent leave(QEvent::Leave);
        QCoreApplication::sendEvent(shown.chart, &leave);
        QCOMPARE(picture(), plain);
        shown.model.lock(2);
        QVERIFY(picture() != plain);
        QVERIFY(Events::untilIdle());
        Events::Count paints(shown.chart, QEvent::Paint);
        shown.hover(onRing(300));
        QVERIFY(Events::untilIdle());
        QCOMPARE(paints.taken(), 1);
        shown.hover(onRing(301));
        QVERIFY(Events::untilIdle());
        QCOMPARE(paints.taken(), 0);
    }

    void tellsAssistiveTools()
    {
        Shown shown({50, 25.26F, 24.74F}, 0);
        shown.model.setVerticalHeaderLabels({u"Tourists"_s, u"Stewards"_s, u"Families"_s});
        shown.model.lock(1);
        QAccessibleInterface *chart = QAccessible::queryAccessibleInterface(shown.chart);
        QCOMPARE(chart->role(), QAccessible::Chart);
        QCOMPARE(chart->childCount(), 5);
        QAccessibleInterface *slice = chart->child(1);
        QCOMPARE(slice->text(QAccessible::Name), u"Stewards, 25.3 percent, locked"_s);
        QCOMPARE(chart->child(0)->text(QAccessible::Name), u"Tourists, 50 percent"_s);
        QCOMPARE(chart->indexOfChild(slice), 1);
        for (int i = 0; i < 5; ++i)
            QCOMPARE(chart->indexOfChild(chart->child(i)), i);
        const QPoint point = shown.chart->mapToGlobal(onRing(200));
        QCOMPARE(chart->childAt(point.x(), point.y()), slice);
        QCOMPARE(QAccessible::queryAccessibleInterface(shown.box())->text(QAccessible::Name), u"Share"_s);
        QVERIFY(slice->rect().contains(point) && slice->parent() == chart);
        QVERIFY(slice->state().checked && !slice->state().selected);
        slice->actionInterface()->doAction(QAccessibleActionInterface::toggleAction());
        slice->actionInterface()->doAction(QAccessibleActionInterface::pressAction());
        QVERIFY(!slice->state().checked && slice->state().selected);
        QCOMPARE(shown.slider()->value(), 25.26);
        shown.model.removeRows(1, 2);
        QVERIFY(!slice->isValid() && slice->state().invalid);
        QCOMPARE(slice->text(QAccessible::Name), QString());
        QVERIFY(slice->actionInterface()->actionNames().isEmpty());
    }
};

VELMO_TEST_MAIN(PieChartTest)
#include "PieChartTest.moc"
