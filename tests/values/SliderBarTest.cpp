#include "support/Events.h"
#include "support/Gestures.h"
#include "support/Picture.h"
#include "support/TestCase.h"
#include "support/Told.h"

#include "values/SliderBarRules.h"
#include "values/SliderBarSheets.h"
#include "values/oVIXSliderBar.h"

#include <QAccessible>
#include <QTest>

#include <cmath>
#include <limits>

using namespace Qt::StringLiterals;

namespace {

constexpr float infinite = std::numeric_limits<float>::infinity();

/// The background of a sheet: outside O, marker M, normal fill N, hovered fill H.
QString backgroundOf(QString sheet)
{
    sheet = sheet.section(u"background: "_s, 1).section(u"}QLabel:disabled"_s, 0, 0);
    sheet.replace(u"rgb(59,59,59)"_s, u"O"_s).replace(u"rgb(219,219,219)"_s, u"M"_s);
    sheet.replace(u"rgb(81,81,81)"_s, u"N"_s).replace(u"rgb(65, 84, 92)"_s, u"H"_s);
    return sheet.remove(u"qlineargradient(spread:pad, x1:0, y1:0, x2:1, y2:0, "_s);
}

} // namespace

class SliderBarTest : public TestCase
{
    Q_OBJECT

private slots:
    void placesMarkersOnPixels_data()
    {
        QTest::addColumn<float>("wanted");
        QTest::addColumn<int>("width");
        QTest::addColumn<float>("place");
        QTest::newRow("half") << 0.5F << 101 << 51.0F / 101.0F;
        QTest::newRow("below half a pixel") << 0.004F << 100 << 0.0F;
        QTest::newRow("beyond the end") << 3.0F << 100 << 3.0F;
        QTest::newRow("negative") << -1.0F << 100 << 0.25F;
        QTest::newRow("not a number") << std::nanf("") << 100 << 0.25F;
        QTest::newRow("infinite") << infinite << 100 << float(std::numeric_limits<int>::max()) / 100.0F;
        QTest::newRow("no width") << 0.7F << 0 << 0.7F;
    }
    void placesMarkersOnPixels()
    {
        QFETCH(float, wanted);
        QFETCH(int, width);
        QTEST(placedMarker(0.25F, wanted, width), "place");
    }

    void drawsTheRange_data()
    {
        QTest::addColumn<int>("width");
        QTest::addColumn<float>("left");
        QTest::addColumn<float>("right");
        QTest::addColumn<QString>("hover");
        QTest::addColumn<QString>("normal");
        QTest::newRow("whole") << 100 << -1.0F << 1.0F << u"H;"_s << u"N;"_s;
        QTest::newRow("no width") << 0 << 0.0F << infinite << u"H;"_s << u"N;"_s;
        QTest::newRow("one marker") << 100 << -1.0F << 0.4F
                                    << u"stop:0.3875 H, stop:0.39375 M, stop:0.425 M, stop:0.43125 O, stop : 1 O);"_s
                                    << u"stop:0.39375 N, stop:0.4 O, stop:1 O);"_s;
        QTest::newRow("one marker at the end")
            << 100 << 0.0F << 0.98F << u"stop:0.9675 H, stop:0.97375 M, stop : 1 M);"_s
            << u"stop:0.97375 N, stop:0.98 O, stop:1 O);"_s;
        QTest::newRow("six digits") << 3 << 0.0F << 1.0F / 3.0F << u"stop:0 H, stop:0.125 M, stop : 1 M);"_s
                                    << u"stop:0.125 N, stop:0.333333 O, stop:1 O);"_s;
        QTest::newRow("two markers") << 100 << 0.25F << 0.6F
                                     << u"stop:0.2375 O, stop:0.24375 M, stop:0.275 M, stop:0.28125 H, stop:0.5875 H, "
                                        "stop:0.59375 M, stop:0.625 M, stop:0.63125 O, stop : 1 O);"_s
                                     << u"stop:0.0 O, stop:0.24375 O, stop:0.25 N, stop:0.60625 N, stop:0.6125 O, "
                                        "stop:1 O);"_s;
        QTest::newRow("together at the start")
            << 100 << 0.01F << 0.01F
            << u"stop:0.0 M, stop:0.035 M, stop:0 H, stop:0.00375 M, stop:0.035 M, stop:0.04125 O, stop : 1 O);"_s
            << u"stop:0.0 O, stop:0.01625 N, stop:0.0225 O, stop:1 O);"_s;
        QTest::newRow("left marker at the end")
            << 100 << 0.97F << 1.0F << u"stop:0.9575 O, stop:0.96375 M, stop : 1 M);"_s
            << u"stop:0.0 O, stop:0.96375 O, stop:0.97 N, stop:1 N);"_s;
    }
    void drawsTheRange()
    {
        QFETCH(int, width);
        QFETCH(float, left);
        QFETCH(float, right);
        const SliderBarSheets sheets = SliderBarSheets::of({left, right, width, false, false, false, false});
        QTEST(backgroundOf(sheets.hover), "hover");
        QTEST(backgroundOf(sheets.normal), "normal");
    }

    void writesItsSheetToTheCharacter()
    {
        const SliderBarSheets all = SliderBarSheets::of({-1, 1, 100, true, true, true, true});
        const QString tail = u"}QLabel:disabled {\tbackground-color:rgba(59,59,59,127); \tcolor:rgb(105,105,105);}"_s;
        const QString middle = u"border-top:0px solid;border-bottom:0px solid;border-left:0px solid;"
                               "border-right:0px solid;border-top-left-radius: 4px; border-bottom-left-radius: 4px;"
                               "border-top-right-radius: 4px; border-bottom-right-radius: 4px;background: "_s;
        QCOMPARE(all.hover, u"QLabel {color:rgb(116, 211, 252);"_s + middle + u"rgb(65, 84, 92);"_s + tail);
        QCOMPARE(all.normal, u"QLabel {color:rgb(156,156,156);"_s + middle + u"rgb(81,81,81);"_s + tail);
        QCOMPARE(SliderBarSheets::of({-1, 1, 100, false, true, false, false}).normal,
                 u"QLabel {color:rgb(156,156,156);border-top:0px solid;border-bottom:0px solid;border-right:0px solid;"
                 "background: rgb(81,81,81);"_s
                     + tail);
    }

    void reportsADrag()
    {
        oVIXSliderBar bar;
        bar.resize(100, 16);
        Told told(&bar);
        QVERIFY(Gestures::send(&bar, QEvent::MouseButtonPress, {30, 8}));
        QCOMPARE(told.taken(), u"valueStarted"_s);
        QCOMPARE(bar.getSelectedValue(), 0.0);
        QVERIFY(Gestures::send(&bar, QEvent::MouseMove, {43, 8}));
        QCOMPARE(bar.getSelectedValue(), 0.43);
        Gestures::send(&bar, QEvent::MouseMove, {-20, 8});
        Gestures::send(&bar, QEvent::MouseButtonRelease, {400, 8});
        QCOMPARE(told.taken(), u"valueChanged 0.43, valueChanged 0.0, valueChanged 1.0, valueFinished"_s);

        for (const QEvent::Type type : {QEvent::MouseButtonPress, QEvent::MouseMove, QEvent::MouseButtonRelease})
            QVERIFY(!Gestures::send(&bar, type, {50, 8}, Qt::RightButton));
        QCOMPARE(told.taken(), QString());
        bar.resize(0, 16);
        Gestures::send(&bar, QEvent::MouseMove, {5, 8});
        QCOMPARE(told.taken(), u"valueChanged 0.0"_s);
    }

    void appliesASheetOnlyWhenItDiffers()
    {
        QWidget window;
        window.resize(200, 40);
        oVIXSliderBar bar(&window);
        bar.setGeometry(20, 10, 100, 16);
        Gestures::show(&window);
        Gestures::leave();
        QVERIFY(Events::untilIdle());
        Events::Count sheets(&bar, QEvent::StyleChange);
        constexpr int steps = 10;
        for (int step = 0; step < steps; ++step) {
            bar.posMarkers(-1, 0.5F + float(step) / 100.0F);
            QVERIFY(Events::untilIdle());
        }
        QCOMPARE(sheets.taken(), steps);
        for (int step = 0; step < steps; ++step) {
            bar.posMarkers(-1, 0.59F + float(step) / 10000.0F);
            bar.setRoundedLeft(false);
            bar.repaint();
        }
        QCOMPARE(sheets.taken(), 0);
        QCOMPARE(Picture::colourAt(&bar, {50, 1}), QColor(81, 81, 81));

        Gestures::hover(&bar);
        QVERIFY(Events::untilIdle());
        QCOMPARE(Picture::colourAt(&bar, {50, 1}), QColor(65, 84, 92));
        QCOMPARE(Picture::colourAt(&bar, {60, 1}), QColor(219, 219, 219));
        Gestures::leave();
        QVERIFY(Events::untilIdle());
        bar.setEnabled(false);
        Gestures::hover(&bar);
        QVERIFY(Events::untilIdle());
        QVERIFY(bar.styleSheet().startsWith(u"QLabel {color:rgb(156,156,156);"_s));
    }

    void isASliderToAssistiveTools()
    {
        oVIXSliderBar bar;
        Told told(&bar);
        bar.posMarkers(0.2F, 0.5F);
        QAccessibleInterface *accessible = QAccessible::queryAccessibleInterface(&bar);
        QCOMPARE(accessible->role(), QAccessible::Slider);
        bar.setText(u"Spacing"_s);
        QCOMPARE(accessible->text(QAccessible::Name), u"Spacing"_s);
        QAccessibleValueInterface *value = accessible->valueInterface();
        QCOMPARE(value->currentValue(), QVariant(0.5));
        QCOMPARE(value->minimumValue(), QVariant(0.0));
        QCOMPARE(value->maximumValue(), QVariant(1.0));
        QVERIFY(value->minimumStepSize().toDouble() > 0);
        value->setCurrentValue(0.75);
        QCOMPARE(told.taken(), u"valueStarted, valueChanged 0.75, valueFinished"_s);
        value->setCurrentValue(std::nan(""));
        bar.setEnabled(false);
        value->setCurrentValue(0.5);
        QCOMPARE(told.taken(), QString());
    }
};

VELMO_TEST_MAIN(SliderBarTest)
#include "SliderBarTest.moc"
