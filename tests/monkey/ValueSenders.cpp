#include "monkey/SenderTables.h"

#include "OvixMovableLabel.h"
#include "OvixSvgButton.h"
#include "oVIXPieChartWidget.h"
#include "oVIXProgressBar.h"
#include "oVIXSliderBar.h"
#include "oVIXSliderWidget.h"
#include "oVIXTimebarWidget.h"
#include "oVIXToggle.h"

#include <QAbstractSpinBox>
#include <QLineEdit>
#include <QStandardItemModel>
#include <QtMath>

using namespace Qt::StringLiterals;

namespace Senders {
namespace {

/// In a chart of 280 pixels; degrees clockwise from twelve o'clock.
QPoint onRing(double degrees)
{
    const double angle = qDegreesToRadians(degrees - 90);
    return QPoint(140, 140) + (75 * QPointF(std::cos(angle), std::sin(angle))).toPoint();
}

oVIXPieChartWidget *createChart(QWidget *host)
{
    auto *chart = new oVIXPieChartWidget(host);
    auto *model = new QStandardItemModel(3, 1, host);
    for (int row = 0; row < 3; ++row)
        model->setData(model->index(row, 0), row == 0 ? 50.0F : 25.0F, Qt::EditRole);
    chart->resize(280, 280);
    chart->setModel(model);
    chart->onSelectionChanged(0);
    return chart;
}

/// The end of the selected slice, half round the ring.
void dragShare(oVIXPieChartWidget *chart)
{
    const QPointer<QWidget> host(chart->window());
    Gestures::hover(chart, onRing(180));
    QTest::mousePress(host->windowHandle(), Qt::LeftButton, {}, onRing(180));
    for (const int degrees : {190, 200})
        Gestures::hover(host, onRing(degrees));
    QTest::mouseRelease(host->windowHandle(), Qt::LeftButton, {}, onRing(200));
}

void clickSlice(oVIXPieChartWidget *chart)
{
    Gestures::hover(chart, onRing(300));
    QTest::mouseClick(chart->window()->windowHandle(), Qt::LeftButton, {}, onRing(300));
}

oVIXSliderWidget *createSlider(QWidget *host)
{
    auto *slider = placed(new oVIXSliderWidget(host), {400, 20});
    slider->changeMode(oVIXSliderWidget::DoubleRange);
    slider->setLimitsAndValuesMin(0, 100, 20, 1);
    slider->setLimitsAndValues(0, 100, 80.25, 1);
    return slider;
}

/// The nearer handle of the range follows.
void dragEnd(oVIXSliderWidget *slider, double from, double to)
{
    QWidget *bar = partOf(slider, u"lbSlider"_s);
    const QPointer<QWidget> host(bar->window());
    const auto at = [bar, host](double share) { return bar->mapTo(host, QPoint(int(bar->width() * share), 10)); };
    const QPoint first = at(from);
    const QPoint last = at(to);
    Gestures::hover(host, first);
    QTest::mousePress(host->windowHandle(), Qt::LeftButton, {}, first);
    Gestures::hover(host, last);
    QTest::mouseRelease(host->windowHandle(), Qt::LeftButton, {}, last);
}

Act dragUpperEnd()
{
    return with<oVIXSliderWidget>([](oVIXSliderWidget *slider) { dragEnd(slider, 0.8, 0.9); });
}

Act dragLowerEnd()
{
    return with<oVIXSliderWidget>([](oVIXSliderWidget *slider) { dragEnd(slider, 0.2, 0.1); });
}

Act typeNumber(const QString &box)
{
    return [=](QObject *sender) {
        partOf(sender, box)->findChild<QLineEdit *>()->selectAll();
        type(partOf(sender, box), u"50"_s);
    };
}

Act clickArrow(const QString &arrow)
{
    return [=](QObject *sender) {
        const QPointer<QWidget> button(partOf(sender, arrow));
        Gestures::hover(button->parentWidget());
        if (button)
            Gestures::click(button);
    };
}

OvixMovableLabel *createMarker(QWidget *host)
{
    auto *marker = placed(new OvixMovableLabel(host), {40, 24});
    marker->setMinMaxPosValue(0, 400, 50);
    marker->setCurrentValue(10);
    return marker;
}

/// A double click opens the editor.
void editMarker(QWidget *marker)
{
    const QPointer<QWidget> edited(marker);
    Gestures::focus(marker->window());
    Gestures::doubleClick(marker);
    if (edited)
        type(marker->findChild<QLineEdit *>(), u"30"_s);
}

Act edit(const QString &part = {})
{
    return [=](QObject *sender) { editMarker(partOf(sender, part)); };
}

oVIXTimebarWidget *createTimebar(QWidget *host)
{
    auto *timebar = new oVIXTimebarWidget(host);
    timebar->setGeometry(0, 50, 600, 40);
    timebar->setMaxValue(100);
    timebar->updateCachedValue(100);
    timebar->setCropValues(20, 80);
    timebar->setPlayWidgetFrame(50);
    return timebar;
}

oVIXToggle *createToggle(QWidget *host)
{
    auto *toggle = new oVIXToggle(host);
    for (const QString &name : {u"Dots"_s, u"Trails"_s})
        toggle->addState(u":/Windows/AddButton"_s, u":/Windows/AddButton"_s, name, {});
    toggle->resize(64, 32);
    return toggle;
}

} // namespace
} // namespace Senders

QList<Senders::Sender> Senders::ofValues()
{
    const Act dragBar = dragAndDrop({}, QPoint(40, 0));
    const Act dragChart = with<oVIXPieChartWidget>(dragShare);
    const Act lock = with<oVIXPieChartWidget>([](oVIXPieChartWidget *chart) { chart->onLockButtonClicked(); });
    const Act setEnds = with<oVIXSliderWidget>([](oVIXSliderWidget *slider) {
        const QPointer<oVIXSliderWidget> set(slider);
        slider->setValue(60);
        if (set)
            set->setValueMin(30);
    });
    const Act turn = with<QWidget>([](QWidget *slider) { Gestures::turnWheel(partOf(slider, u"spinMaxDouble"_s)); });
    const Act round = with<oVIXSliderWidget>([](oVIXSliderWidget *slider) { slider->setDecimals(0); });
    const Act clickArrowItself =
        with<QWidget>([](QWidget *slider) { slider->findChild<OvixSvgButton *>(u"spinMaxDoubleArrowUp"_s)->click(); });
    const Act clickState =
        with<QWidget>([](QWidget *toggle) { Gestures::click(toggle->findChildren<OvixSvgButton *>().constLast()); });
    return {
        {"oVIXSliderBar",
         [](QWidget *host) {
             return placed(new oVIXSliderBar(host), {200, 20});
         },
         {{"valueStarted()", dragBar}, {"valueChanged(double)", dragBar}, {"valueFinished()", dragBar}}},
        {"oVIXSliderWidget",
         createSlider,
         {{"valueStarted()", dragUpperEnd()},
          {"valueChanged(int)", setEnds},
          {"valueChanged(double)", dragUpperEnd()},
          {"valueMinChanged(int)", setEnds},
          {"valueMinChanged(double)", dragLowerEnd()},
          {"valueFinished()", dragUpperEnd()},
          {"valueChanged(double)", setEnds},
          {"valueMinChanged(double)", setEnds},
          {"valueChanged(double)", typeNumber(u"spinMaxDouble"_s), Deletion::Later},
          {"valueMinChanged(double)", typeNumber(u"spinMinDouble"_s), Deletion::Later},
          {"valueFinished()", typeNumber(u"spinMaxDouble"_s), Deletion::Later},
          {"valueFinished()", clickArrow(u"spinMaxDoubleArrowDown"_s), Deletion::Later},
          {"valueFinished()", clickArrowItself},
          {"valueFinished()", pressKey(u"spinMaxDouble"_s, Qt::Key_Up), Deletion::Later},
          {"valueFinished()", turn, Deletion::Later},
          {"valueChanged(double)", round}}},
        {"OvixMovableLabel",
         createMarker,
         {{"moved()", dragBar}, {"released()", dragBar}, {"editingStarted()", edit()}, {"editingFinished()", edit()}}},
        {"oVIXTimebarWidget",
         createTimebar,
         {{"s_valuePicked()", click(u"RealBar"_s)},
          {"s_valuePicked()", dragAndDrop(u"floatingCurrTime"_s, QPoint(40, 0))},
          {"s_valuePicked()", edit(u"floatingCurrTime"_s), Deletion::Later},
          {"s_cropChanged()", dragAndDrop(u"floatingLeftCrop"_s, QPoint(40, 0))},
          {"s_cropChanged()", dragAndDrop(u"floatingRightCrop"_s, QPoint(-40, 0))},
          {"s_cropChanged()", edit(u"floatingLeftCrop"_s), Deletion::Later}}},
        {"oVIXPieChartWidget",
         createChart,
         {{"valueStarted()", dragChart},
          {"valueChanged(double)", dragChart},
          {"valueFinished()", dragChart},
          {"indexChanged(int)", with<oVIXPieChartWidget>(clickSlice)},
          {"lockedChanged()", lock}}},
        {"oVIXProgressBar",
         [](QWidget *host) {
             return placed(new oVIXProgressBar(host), {200, 10});
         },
         {{"valuePicked()", click()}}},
        {"oVIXToggle", createToggle, {{"changed(QString)", clickState}}},
    };
}
