#include "support/Events.h"
#include "support/Gestures.h"
#include "support/TestCase.h"
#include "support/Told.h"

#include "foundation/OvixSvgButton.h"
#include "values/SliderRules.h"
#include "values/oVIXDoubleSliderWidget.h"
#include "values/oVIXSliderBar.h"

#include <QAccessible>
#include <QDoubleSpinBox>
#include <QLineEdit>
#include <QTest>
#include <QVBoxLayout>

#include <memory>
#include <utility>

using namespace Qt::StringLiterals;

namespace {

using Slider = oVIXSliderWidget;
constexpr double infinite = std::numeric_limits<double>::infinity();

const QStringList parts{u"spinMinWidget"_s, u"spinMinDoubleWidget"_s, u"lbSub"_s,
                        u"lbSlider"_s,      u"lateralSpinFrame"_s,    u"lbAdd"_s,
                        u"spinMaxWidget"_s, u"spinMaxDoubleWidget"_s};

template <class Part = QWidget> Part *part(const Slider &slider, const QString &name)
{
    auto *found = slider.findChild<Part *>(name);
    if (!found)
        qFatal("no %s", qPrintable(name));
    return found;
}

oVIXSliderBar *barOf(const Slider &slider)
{
    return part<oVIXSliderBar>(slider, u"lbSlider"_s);
}

/// A slider widget whose bar is 100 pixels wide, from 0 to @p maximum.
std::unique_ptr<Slider> createSlider(Slider::SLIDERMODE mode, double maximum)
{
    auto slider = std::make_unique<Slider>(nullptr);
    slider->changeMode(mode);
    slider->setLimitsAndValuesMin(0, maximum, 0, 1);
    slider->setLimitsAndValues(0, maximum, 0, 1);
    barOf(*slider)->setFixedWidth(100);
    slider->adjustSize();
    slider->layout()->activate();
    return slider;
}

void drag(const Slider &slider, int x)
{
    for (const QEvent::Type type : {QEvent::MouseButtonPress, QEvent::MouseMove, QEvent::MouseButtonRelease})
        Gestures::send(barOf(slider), type, {x, 10});
}

} // namespace

class SliderWidgetTest : public TestCase
{
    Q_OBJECT

private slots:
    void computes_data()
    {
        QTest::addColumn<double>("got");
        QTest::addColumn<double>("expected");
        using namespace SliderRules;
        const auto row = [](const char *name, double got, double expected) { QTest::newRow(name) << got << expected; };
        row("ratio beyond the soft limit", ratioOf(40, 10, 20), 3.0);
        row("ratio without a range, at it", ratioOf(10, 10, 10), 0.0);
        row("ratio without a range, above it", ratioOf(11, 10, 10), 1.0);
        row("snaps to integers", snappedRatio(0.43, 0, 10, true), double(4.0F) / 10);
        row("snaps half up", snappedRatio(0.45, 0, 10, true), 0.5);
        row("snaps below 0", snappedRatio(0.04, -10, 10, true), double(1.0F) / 20);
        row("snaps to hundredths", snappedRatio(0.12345, 0, 1, false), double(0.12F));
        row("snaps the offset", snappedRatio(0.5, 0.005, 1.005, false), 0.5);
        row("snaps without a range", snappedRatio(0.5, 3, 3, true), 0.0);
        row("snaps the huge", snappedRatio(0.5, 0, 1e300, true), double(2147483647.0F) / 1e300);
    }
    void computes()
    {
        QFETCH(double, got);
        QTEST(got, "expected");
    }

    void showsTheEditorsOfItsMode_data()
    {
        QTest::addColumn<int>("mode");
        QTest::addColumn<QString>("shown");
        QTest::addColumn<bool>("snaps");
        QTest::newRow("integer range") << 0 << u"spinMinWidget lbSlider spinMaxWidget"_s << true;
        QTest::newRow("single integer") << 1 << u"lbSlider spinMaxWidget"_s << true;
        QTest::newRow("double range") << 2 << u"spinMinDoubleWidget lbSlider spinMaxDoubleWidget"_s << false;
        QTest::newRow("single double") << 3 << u"lbSlider spinMaxDoubleWidget"_s << false;
        QTest::newRow("lateral") << 4 << u"lbSub lateralSpinFrame lbAdd"_s << false;
        QTest::newRow("lateral again") << 5 << u"lbSub lateralSpinFrame lbAdd"_s << false;
        QTest::newRow("none") << 6 << QString() << false;
    }
    void showsTheEditorsOfItsMode()
    {
        QFETCH(int, mode);
        Slider slider;
        slider.setSnapToInteger(mode > 1);
        slider.changeMode(Slider::IntegerRange);
        slider.setLimitsAndValuesMin(0, 10, 4.5, 1);
        slider.setLimitsAndValues(0, 10, 7.5, 1);
        slider.changeMode(Slider::SLIDERMODE(mode));
        Gestures::show(&slider);
        QVERIFY(Events::untilIdle());
        QStringList shown;
        for (const QString &name : parts) {
            if (part(slider, name)->isVisible())
                shown << name;
        }
        QTEST(shown.join(u' '), "shown");
        QCOMPARE(slider.height(), 20);
        QVERIFY(!slider.findChild<QLineEdit *>(u"qt_spinbox_lineedit"_s, Qt::FindDirectChildrenOnly)->isVisible());
        QCOMPARE(slider.value(), mode > 5 ? 0.0 : mode > 1 ? 7.5 : 7.0);
        QCOMPARE(slider.valueMin(), mode == 0 ? 4.0 : mode == 2 ? 4.5 : 0.0);
        if (mode > 3)
            return;
        const bool range = mode == 0 || mode == 2;
        QCOMPARE(barOf(slider)->leftMarker() > 0, range);
        QCOMPARE(barOf(slider)->styleSheet().contains(u"border-left"_s), !range);
        QCOMPARE(barOf(slider)->styleSheet().contains(u"border-top-left-radius"_s), !range);
        QVERIFY(!barOf(slider)->styleSheet().contains(u"right"_s));
        // The markers follow the bar's width, on whole pixels.
        const double pixels = double(barOf(slider)->rightMarker()) * barOf(slider)->width();
        QVERIFY(std::abs(pixels - std::round(pixels)) < 1e-3);
    }

    void isBuiltAsDesigned()
    {
        const oVIXDoubleSliderWidget slider;
        QVERIFY(!part(slider, u"spinMaxDoubleWidget"_s)->isHidden());
        QCOMPARE(slider.focusPolicy(), Qt::NoFocus);
        QCOMPARE(barOf(slider)->text(), u"SLIDER_TEXT"_s);
        QCOMPARE(barOf(slider)->styleSheet(), u"background-color:transparent;"_s);
        QCOMPARE(
            part(slider, u"spinMinDouble"_s)->styleSheet(),
            u"QDoubleSpinBox {\tbackground-color: rgb(28,28,28);\tcolor: rgb(219,219,219);\tborder-top-left-radius: "
            "leftpx;\tborder-bottom-left-radius: 4px; \tfont-size: 11px;}QDoubleSpinBox:disabled "
            "{\tbackground-color: rgba(28,28,28,128);\tcolor: rgb(105,105,105);}"_s);
        QVERIFY(part(slider, u"spinMax"_s)->styleSheet().contains(u"QSpinBox {\tbackground-color"_s));
        QVERIFY(part(slider, u"spinMax"_s)->styleSheet().contains(u"border-bottom-right-radius: 4px;"_s));
        Slider coloured;
        coloured.setColorNoSliderMode(u"rgb(1, 2, 3)"_s);
        QCOMPARE(part(coloured, u"lateralSpin"_s)->styleSheet(),
                 u"QDoubleSpinBox {\tbackground: rgb(28,28,28);\tcolor: rgb(1, 2, 3);}QDoubleSpinBox:disabled "
                 "{\tbackground-color: rgb(28,28,28);\tcolor: rgb(156,156,156);}"_s);
    }

    void isNotClippedByAPanel()
    {
        QWidget panel;
        auto *layout = new QVBoxLayout(&panel);
        auto *slider = new Slider;
        slider->changeMode(Slider::DoubleRange);
        slider->setPrefix(u"A rather long prefix"_s);
        layout->addWidget(slider);
        panel.resize(1, 1);
        Gestures::show(&panel);
        for (const QString &name : {u"spinMinDoubleArrowUp"_s, u"spinMaxDoubleArrowUp"_s}) {
            const QWidget *arrow = part(*slider, name);
            QVERIFY(slider->rect().contains(QRect(arrow->mapTo(slider, QPoint()), arrow->size())));
        }
        QVERIFY(barOf(*slider)->width() >= barOf(*slider)->fontMetrics().horizontalAdvance(barOf(*slider)->text()));
    }

    void aDragSnapsAndFinishes()
    {
        const auto integer = createSlider(Slider::SingleInteger, 10);
        Told told(integer.get());
        drag(*integer, 43);
        QCOMPARE(told.taken(), u"valueStarted, valueChanged 4, valueFinished"_s);
        QCOMPARE(barOf(*integer)->rightMarker(), 0.4F);
        drag(*integer, 44);
        QCOMPARE(told.taken(), u"valueStarted"_s);

        const auto fraction = createSlider(Slider::SingleDouble, 1);
        fraction->setDecimals(8);
        barOf(*fraction)->pick(0.12345);
        QCOMPARE(fraction->value(), 0.12); // the box has fewer digits than single precision's error
        fraction->setDecimals(10);
        barOf(*fraction)->pick(0.12345);
        QCOMPARE(fraction->value(), 0.1199999973);
    }

    void aDragMovesTheNearerHandle()
    {
        for (const auto mode : {Slider::IntegerRange, Slider::DoubleRange}) {
            const auto slider = createSlider(mode, 10);
            drag(*slider, 80);
            QCOMPARE(std::pair(slider->valueMin(), slider->value()), std::pair(0.0, 8.0));
            drag(*slider, 40); // midway
            QCOMPARE(std::pair(slider->valueMin(), slider->value()), std::pair(4.0, 8.0));
            drag(*slider, 70);
            QCOMPARE(std::pair(slider->valueMin(), slider->value()), std::pair(4.0, 7.0));
            slider->setValueMin(9);
            QCOMPARE(slider->valueMin(), 7.0);
            QCOMPARE(barOf(*slider)->leftMarker(), 0.7F);
        }
    }

    void settersTellThroughBothBoxes()
    {
        const auto slider = createSlider(Slider::SingleDouble, 10);
        Told told(slider.get());
        slider->setValue(3.5);
        QCOMPARE(told.taken(), u"valueChanged 3, valueChanged 3.5"_s);
        slider->setValue(12);
        QCOMPARE(told.taken(), u"valueChanged 10, valueChanged 10.0, valueFinished"_s);
        slider->changeMode(Slider::SingleInteger);
        slider->setValue(4.5);
        QCOMPARE(told.taken(), u"valueChanged 4, valueChanged 4.5, valueFinished"_s);
        slider->setValueMin(2.5);
        QCOMPARE(told.taken(), u"valueMinChanged 2.5, valueMinChanged 2, valueFinished"_s);
        slider->changeMode(Slider::Lateral);
        barOf(*slider)->pick(0.5); // a drag that goes on without a bar
        QVERIFY(!told.taken().contains(u'.'));
        slider->setValue(6.5);
        QCOMPARE(told.taken(), u"valueChanged 6, valueChanged 6.5, valueChanged 6, valueChanged 6.5"_s);

        slider->setMaximum(20);
        slider->setSpinBoxMaximum(50);
        slider->setMinimum(-5);
        QCOMPARE(slider->sliderMaximum(), 20.0);
        for (int mode = 0; mode <= 5; ++mode) {
            slider->changeMode(Slider::SLIDERMODE(mode));
            QCOMPARE(std::pair(slider->minimum(), slider->spinBoxMaximum()), std::pair(-5.0, 50.0));
        }
        slider->changeMode(Slider::SingleDouble);
        slider->setValue(40);
        QVERIFY(barOf(*slider)->rightMarker() > 1);
    }

    void survivesBadNumbers()
    {
        for (int mode = 0; mode <= 5; ++mode) {
            const auto slider = createSlider(Slider::SLIDERMODE(mode), 10);
            for (const double number : {std::nan(""), infinite, -infinite, 1e300, -1e300, 0.0}) {
                slider->setLimitsAndValues(number, number, number, number);
                slider->setLimitsAndValuesMin(0, number, number, 1);
                slider->setMinimum(number);
                slider->setMaximum(number);
                slider->setValueMin(number);
                slider->setSingleStep(number);
                slider->setDecimals(std::isnan(number) ? -1 : 3);
                slider->setValue(number);
                drag(*slider, 60);
                QVERIFY(std::isfinite(slider->value()) && std::isfinite(slider->sliderMaximum()));
                QVERIFY(!std::isnan(barOf(*slider)->rightMarker()));
            }
        }
    }

    void stepsByKeysWheelAndArrows()
    {
        const auto slider = createSlider(Slider::IntegerRange, 10);
        slider->setValue(5);
        QVERIFY(!slider->hasFocus());
        Gestures::show(slider.get());
        auto *box = part<QSpinBox>(*slider, u"spinMax"_s);
        Gestures::focus(box);
        QVERIFY(slider->hasFocus());
        Told told(slider.get());
        QTest::keyPress(box, Qt::Key_Up);
        QTest::keyRelease(box, Qt::Key_Up);
        QCOMPARE(told.taken(), u"valueChanged 6, valueFinished"_s);
        Gestures::turnWheel(box, 120);
        QCOMPARE(told.taken(), u"valueChanged 7, valueFinished"_s);
        Gestures::turnWheel(box, 0);
        QTest::keyClick(box, Qt::Key_Down);
        QCOMPARE(told.taken(), u"valueChanged 6, valueFinished, valueChanged 5, valueFinished"_s);
        Gestures::click(part(*slider, u"spinMinArrowUp"_s));
        Gestures::click(part(*slider, u"spinMaxArrowDown"_s));
        QCOMPARE(told.taken(), u"valueMinChanged 1, valueFinished, valueChanged 4, valueFinished"_s);

        box->selectAll();
        QTest::keyClicks(box, u"8"_s);
        QCOMPARE(told.taken(), u"valueChanged 8"_s);
        QTest::keyClick(box, Qt::Key_Return);
        QCOMPARE(told.taken(), u"valueChanged 8, valueFinished, valueFinished"_s); // a box repeats its value on Return
        QTest::keyClick(box, Qt::Key_Enter);
        QCOMPARE(told.taken(), u"valueChanged 8, valueFinished"_s);

        slider->setEnabled(false);
        Gestures::turnWheel(box, 120);
        QCOMPARE(told.taken(), QString());

        const auto lateral = createSlider(Slider::Lateral, 10);
        lateral->setSuffix(u" m"_s);
        Gestures::show(lateral.get());
        Gestures::click(part(*lateral, u"lbAdd"_s));
        Gestures::click(part(*lateral, u"lbAdd"_s));
        Gestures::click(part(*lateral, u"lbSub"_s));
        QCOMPARE(part<QDoubleSpinBox>(*lateral, u"lateralSpin"_s)->text(), u"1.00 m"_s);
    }

    void tellsNothingOnceItGoes()
    {
        QWidget window;
        auto *slider = new Slider(&window);
        Gestures::show(&window);
        Told told(slider);
        auto *box = part<QSpinBox>(*slider, u"spinMax"_s);
        Gestures::focus(box);
        box->setKeyboardTracking(false);
        box->selectAll();
        QTest::keyClicks(box, u"7"_s);
        delete slider;
        QCOMPARE(told.taken(), QString());
    }

    void isASliderToAssistiveTools()
    {
        const auto slider = createSlider(Slider::SingleDouble, 10);
        slider->setPrefix(u"Spacing"_s);
        slider->setSuffix(u" m"_s);
        slider->setLimitsAndValues(-1, 10, 2.5, 0.5);
        Told told(slider.get());
        QAccessibleInterface *accessible = QAccessible::queryAccessibleInterface(slider.get());
        QCOMPARE(accessible->role(), QAccessible::Slider);
        QCOMPARE(accessible->text(QAccessible::Name), u"Spacing"_s);
        QCOMPARE(accessible->text(QAccessible::Value), u"2.50 m"_s);
        auto *bar = slider->findChild<oVIXSliderBar *>();
        for (const QString &name : {u"Spacing"_s, u"Distance"_s}) { // its parts are called as it is
            slider->setAccessibleName(name);
            QShowEvent shows;
            QCoreApplication::sendEvent(slider.get(), &shows);
            QCOMPARE(slider->findChild<QSpinBox *>()->accessibleName(), name);
            QCOMPARE(QAccessible::queryAccessibleInterface(bar)->text(QAccessible::Name), name);
        }
        QAccessibleValueInterface *value = accessible->valueInterface();
        QCOMPARE(value->currentValue(), QVariant(2.5));
        QCOMPARE(value->minimumValue(), QVariant(-1.0));
        QCOMPARE(value->maximumValue(), QVariant(10.0));
        QCOMPARE(value->minimumStepSize(), QVariant(0.5));
        value->setCurrentValue(4);
        QCOMPARE(told.taken(), u"valueChanged 4.0, valueFinished"_s);
        slider->changeMode(Slider::SingleInteger);
        QCOMPARE(value->currentValue(), QVariant(2));
        value->setCurrentValue(infinite);
        QCOMPARE(slider->value(), 10.0);
    }
};

VELMO_TEST_MAIN(SliderWidgetTest)
#include "SliderWidgetTest.moc"
