#include "support/Events.h"
#include "support/Gestures.h"
#include "support/Picture.h"
#include "support/TestCase.h"

#include "values/oVIXFloatingProgressBar.h"
#include "values/oVIXProgressBar.h"

#include <QAccessible>
#include <QPropertyAnimation>
#include <QSignalSpy>
#include <QTest>

using namespace Qt::StringLiterals;

namespace {

QList<QPropertyAnimation *> tweensOf(QObject *object)
{
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    return object->findChildren<QPropertyAnimation *>();
}

} // namespace

class ProgressBarsTest : public TestCase
{
    Q_OBJECT

private slots:
    void paintsItsBandsWhateverIsExposed()
    {
        oVIXProgressBar bar(nullptr);
        bar.resize(100, 10);
        bar.setValue(80);
        bar.setBands(20, 60, 40);
        const QImage whole = Picture::of(&bar);
        for (const auto &[x, colour] :
             {std::pair(10, QColor(59, 59, 59)), std::pair(30, QColor(116, 211, 252)),
              std::pair(50, QColor(81, 81, 81)), std::pair(70, QColor(59, 59, 59)), std::pair(90, QColor(39, 39, 39))})
            QCOMPARE(whole.pixelColor(x, 5), colour);
        QVERIFY(whole.pixelColor(0, 0).alpha() < 255);

        QImage part(bar.size(), QImage::Format_ARGB32_Premultiplied);
        part.fill(Qt::transparent);
        bar.render(&part, QPoint(30, 0), QRegion(30, 0, 30, 10), QWidget::RenderFlags());
        QCOMPARE(part.copy(30, 0, 30, 10), whole.copy(30, 0, 30, 10));
        bar.setMaximum(0);
        QCOMPARE(Picture::colourAt(&bar, {50, 5}), QColor(39, 39, 39));
    }

    void showsEveryChange()
    {
        oVIXProgressBar bar;
        bar.setMaximum(100000);
        bar.resize(100, 10);
        Gestures::show(&bar);
        bar.setValue(50000);
        Events::untilIdle();
        Events::Count paints(&bar, QEvent::Paint);
        bar.setValue(1);
        Events::untilIdle();
        QVERIFY(paints.taken() > 0);
    }

    void picksWithAClick()
    {
        oVIXProgressBar bar;
        bar.resize(200, 20);
        QSignalSpy picked(&bar, &oVIXProgressBar::valuePicked);
        Gestures::show(&bar);
        QTest::mouseClick(&bar, Qt::RightButton, {}, QPoint(50, 5));
        QCOMPARE(bar.getSelectedValue(), 25);
        QTest::mouseRelease(&bar, Qt::LeftButton, {}, QPoint(200, 5));
        QCOMPARE(bar.getSelectedValue(), 100);
        QTest::mouseRelease(&bar, Qt::LeftButton, {}, QPoint(-9, 5));
        QCOMPARE(bar.getSelectedValue(), 0);
        QCOMPARE(picked.size(), 3);
        bar.setClickable(false);
        QTest::mouseClick(&bar, Qt::LeftButton, {}, QPoint(50, 5));
        QCOMPARE(picked.size(), 3);
        bar.initValues();
        QVERIFY(bar.isClickable());
    }

    void glidesUpAndJumpsDown()
    {
        QWidget panel;
        panel.resize(1100, 100);
        oVIXFloatingProgressBar strip(&panel);
        QCOMPARE(strip.size(), QSize(0, 4));
        Gestures::show(&panel);
        QCOMPARE(strip.geometry(), QRect(0, 96, 100, 4));

        strip.setPercent(50);
        strip.setPercent(80);
        QCOMPARE(tweensOf(&strip).size(), 1);
        const QPropertyAnimation *tween = tweensOf(&strip).constFirst();
        QCOMPARE(tween->duration(), 500);
        QCOMPARE(tween->easingCurve().type(), QEasingCurve::OutCubic);
        QVERIFY(strip.width() < 900);
        QTRY_COMPARE(strip.width(), 900);
        QCOMPARE(tweensOf(&strip).size(), 1); // kept

        strip.setPercent(100);
        strip.setPercent(30); // while growing
        QCOMPARE(strip.width(), 400);
        QCOMPARE(tweensOf(&strip).size(), 0);
        strip.setPercent(40);
        panel.resize(550, 50);
        QCOMPARE(strip.geometry(), QRect(0, 46, 250, 4));
        QCOMPARE(tweensOf(&strip).size(), 0);
        panel.resize(0, 0);
        QCOMPARE(strip.width(), 0);
    }

    void takesAnyPercentAndAnyParent()
    {
        oVIXFloatingProgressBar strip(nullptr);
        for (const int percent : {-11, 50, std::numeric_limits<int>::max(), std::numeric_limits<int>::min()}) {
            strip.setPercent(percent);
            QCOMPARE(strip.sizeFromPercent(percent), QSize(0, 4));
        }
        strip.moveToBottom();
        auto *panel = new QWidget;
        panel->resize(110, 40);
        strip.setPercent(90);
        strip.setParent(panel);
        panel->show();
        QCOMPARE(strip.geometry(), QRect(0, 36, 100, 4));
        strip.setParent(nullptr);
        delete panel;

        QAccessibleInterface *interface = QAccessible::queryAccessibleInterface(&strip);
        QCOMPARE(interface->role(), QAccessible::ProgressBar);
        QCOMPARE(interface->valueInterface()->currentValue().toInt(), 90);

        oVIXProgressBar bar;
        bar.setRange(10, 60);
        QSignalSpy picked(&bar, &oVIXProgressBar::valuePicked);
        interface = QAccessible::queryAccessibleInterface(&bar);
        QAccessibleValueInterface *value = interface->valueInterface();
        QCOMPARE(value->currentValue().toInt(), 10); // nothing is done yet
        for (const double asked : {9.0, 61.0, qQNaN(), 30.0})
            value->setCurrentValue(asked);
        bar.setClickable(false);
        value->setCurrentValue(40);
        QVERIFY(interface->state().readOnly);
        QVERIFY(picked.size() == 1 && bar.getSelectedValue() == 30);
    }
};

VELMO_TEST_MAIN(ProgressBarsTest)
#include "ProgressBarsTest.moc"
