#include "support/Events.h"
#include "support/Gestures.h"
#include "support/TestCase.h"

#include "values/OvixMovableLabel.h"
#include "values/oVIXProgressBar.h"
#include "values/oVIXTimebarWidget.h"

#include <QGraphicsOpacityEffect>
#include <QLineEdit>
#include <QPropertyAnimation>
#include <QSignalSpy>
#include <QTest>
#include <QTimer>

#include <cmath>
#include <memory>
#include <vector>

using namespace Qt::StringLiterals;

namespace {

constexpr int lowest = std::numeric_limits<int>::min();
constexpr int highest = std::numeric_limits<int>::max();

/// A timebar in a window: 1,000 pixels for 100 frames, all computed.
struct Shown
{
    QWidget window;
    oVIXTimebarWidget *timebar = new oVIXTimebarWidget(&window);
    OvixMovableLabel *current = timebar->findChild<OvixMovableLabel *>(u"floatingCurrTime"_s);
    OvixMovableLabel *left = timebar->findChild<OvixMovableLabel *>(u"floatingLeftCrop"_s);
    OvixMovableLabel *right = timebar->findChild<OvixMovableLabel *>(u"floatingRightCrop"_s);
    oVIXProgressBar *bar = timebar->findChild<oVIXProgressBar *>(u"RealBar"_s);
    QTimer *hideTimer = timebar->findChild<QTimer *>();

    Shown()
    {
        Gestures::leave();
        window.resize(1100, 200);
        timebar->setGeometry(0, 50, 1080, 40);
        timebar->setMaxValue(100);
        timebar->updateCachedValue(100);
        Gestures::show(&window);
    }

    double opacity(OvixMovableLabel *marker) const
    {
        return static_cast<QGraphicsOpacityEffect *>(marker->graphicsEffect())->opacity();
    }

    void setOpacity(double opacity) const
    {
        for (OvixMovableLabel *marker : {current, left, right})
            static_cast<QGraphicsOpacityEffect *>(marker->graphicsEffect())->setOpacity(opacity);
    }

    /// Drags a marker by its middle until its left edge is there.
    void drag(OvixMovableLabel *marker, int x, bool release = true) const
    {
        Gestures::press(marker);
        Gestures::hover(marker->parentWidget(), QPoint(x + marker->rect().center().x(), 12));
        if (release)
            Gestures::release(marker);
    }

    QList<int> values() const
    {
        return {timebar->getTimeValue(), current->getValue(), timebar->getCropStartValue(), timebar->getCropEndValue()};
    }
};

} // namespace

class TimebarTest : public TestCase
{
    Q_OBJECT

private slots:
    void keepsItsFramesConsistent()
    {
        Shown shown;
        oVIXTimebarWidget *timebar = shown.timebar;
        timebar->updateCachedValue(50);
        timebar->setPlayWidgetFrame(30);
        QCOMPARE(shown.values(), (QList<int>{30, 30, 0, 100}));
        timebar->setPlayWidgetFrame(80);
        QCOMPARE(shown.values(), (QList<int>{30, 80, 0, 100}));
        QCOMPARE(shown.bar->value(), 50);
        timebar->setCropValues(90, 10);
        QCOMPARE(shown.values(), (QList<int>{30, 80, 10, 90}));
        timebar->setCropValues(20, 70);
        QCOMPARE(shown.values(), (QList<int>{20, 20, 20, 70})); // to the start from beyond the end
        QCOMPARE(timebar->getCropEndPos(), 0.7F);
        timebar->setCropValues(40, 300);
        QCOMPARE(shown.values(), (QList<int>{40, 40, 40, 300}));
        QCOMPARE(shown.right->getValue(), 100);
        QCOMPARE(shown.right->geometry().right(), shown.bar->mapTo(timebar, shown.bar->rect().topRight()).x());

        timebar->setMaxValue(60);
        timebar->updateCachedValue(62);
        QCOMPARE(timebar->getCached(), 0);
        timebar->updateCachedValue(61);
        QCOMPARE(timebar->getCached(), 61);
        QCOMPARE(shown.values(), (QList<int>{0, 0, 40, 300}));
        timebar->setPlayStart(0.99F);
        QCOMPARE(timebar->getPlayStart(), 59);
    }

    void blocksAfterAPick()
    {
        Shown shown;
        QSignalSpy picked(shown.timebar, &oVIXTimebarWidget::s_valuePicked);
        Gestures::hover(shown.bar);
        QTest::mouseClick(shown.bar, Qt::LeftButton, {}, QPoint(250, 4));
        QCOMPARE(shown.values(), (QList<int>{25, 25, 0, 100}));
        shown.timebar->setPlayWidgetFrame(60);
        QCOMPARE(shown.values(), (QList<int>{25, 60, 0, 100}));
        shown.timebar->unblock();
        shown.drag(shown.current, 20 + 400, false);
        QCOMPARE(shown.timebar->getSelectedValue(), 40);
        shown.timebar->updateCachedValue(50);
        shown.timebar->unblock();
        Gestures::hover(shown.current->parentWidget(), QPoint(20 + 700 + 19, 12));
        Gestures::release(shown.current);
        QCOMPARE(shown.timebar->getSelectedValue(), 70);
        QCOMPARE(shown.values(), (QList<int>{40, 40, 0, 100})); // back to what has been computed
        QVERIFY(picked.size() >= 3);

        shown.timebar->setClickable(false);
        QVERIFY(shown.current->isHidden() && !shown.timebar->isClickable());
        shown.timebar->showCrops(false);
        shown.timebar->setClickable(true);
        QVERIFY(shown.right->isVisible());
    }

    void cropsByDraggingAndTyping()
    {
        Shown shown;
        QSignalSpy changed(shown.timebar, &oVIXTimebarWidget::s_cropChanged);
        shown.timebar->setPlayWidgetFrame(50);
        shown.drag(shown.right, 600);
        QCOMPARE(shown.values(), (QList<int>{50, 50, 0, 60}));
        shown.drag(shown.left, 40 + 300);
        QCOMPARE(shown.values(), (QList<int>{50, 50, 30, 60}));
        shown.drag(shown.left, 40 + 800); // past the right one
        QCOMPARE(shown.values(), (QList<int>{80, 80, 80, 80}));
        QCOMPARE(shown.right->x(), 800);
        shown.drag(shown.right, 200); // and back
        QCOMPARE(shown.values(), (QList<int>{20, 20, 20, 20}));
        QVERIFY(changed.size() >= 4);

        shown.window.activateWindow();
        QVERIFY(QTest::qWaitForWindowActive(&shown.window));
        Gestures::doubleClick(shown.right);
        auto *editor = shown.right->findChild<QLineEdit *>();
        shown.setOpacity(1.0);
        Gestures::leave();
        QVERIFY(!shown.hideTimer->isActive()); // while it is edited
        QTest::keyClicks(editor, u"75"_s);
        QTest::keyClick(editor, Qt::Key_Return);
        QCOMPARE(shown.values(), (QList<int>{20, 20, 20, 75}));
        QVERIFY(shown.hideTimer->isActive());
    }

    void changesNothingWhenAnEditIsGivenUp()
    {
        Shown shown;
        shown.timebar->setMaxValue(100000);
        shown.timebar->updateCachedValue(100000);
        shown.timebar->setCropValues(150, 99999);
        shown.timebar->setPlayWidgetFrame(250);
        QSignalSpy picked(shown.timebar, &oVIXTimebarWidget::s_valuePicked);
        QSignalSpy cropped(shown.timebar, &oVIXTimebarWidget::s_cropChanged);
        shown.window.activateWindow();
        QVERIFY(QTest::qWaitForWindowActive(&shown.window));
        for (OvixMovableLabel *marker : {shown.current, shown.left, shown.right}) {
            marker->raise();
            Gestures::doubleClick(marker);
            QVERIFY(marker->isEditing());
            QTest::keyClick(marker->findChild<QLineEdit *>(), Qt::Key_Escape);
        }
        QCOMPARE(picked.size() + cropped.size(), 0);
        QCOMPARE(shown.timebar->getTimeValue(), 250);
        QCOMPARE(shown.timebar->getCropStartValue(), 150);
        shown.setOpacity(1.0);
        Gestures::hover(shown.timebar, QPoint(500, 30));
        Gestures::leave();
        QVERIFY(shown.hideTimer->isActive());
    }

    void keepsItsFramesWhenResized()
    {
        Shown shown;
        shown.timebar->setMaxValue(1000);
        shown.timebar->updateCachedValue(1000);
        shown.timebar->setCropValues(200, 900);
        shown.timebar->setPlayWidgetFrame(201);
        for (int width = 1080; width > 680; --width)
            shown.timebar->resize(width, 40);
        for (int width = 0; width < 200; width += 20) // narrower than its margins
            shown.timebar->resize(width, 40);
        shown.timebar->resize(1080, 40);
        QCOMPARE(shown.timebar->getTimeValue(), 201);
        QCOMPARE(shown.current->getKeptValue(), 201);
        QCOMPARE(shown.left->geometry().left(), 40 + 200);
        QCOMPARE(shown.right->geometry().right() + 1, 40 + 900);
        QCOMPARE(shown.current->x() + 20, 40 + 201);
    }

    void fadesItsMarkers()
    {
        Shown shown;
        for (OvixMovableLabel *marker : {shown.current, shown.left, shown.right})
            QCOMPARE(shown.opacity(marker), 0.0);
        const auto tweens = [&shown] {
            QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
            return shown.timebar->findChildren<QPropertyAnimation *>();
        };
        Gestures::hover(shown.timebar, QPoint(500, 30));
        QCOMPARE(tweens().size(), 3);
        QCOMPARE(tweens().constFirst()->duration(), 500);
        QCOMPARE(tweens().constFirst()->easingCurve().type(), QEasingCurve::OutQuad);
        Gestures::leave();
        QVERIFY(shown.hideTimer->isActive());
        QCOMPARE(shown.hideTimer->interval(), 3000);
        Gestures::hover(shown.timebar, QPoint(500, 30));
        QTRY_COMPARE(shown.opacity(shown.right), 1.0);
        Gestures::leave();
        Gestures::hover(shown.timebar, QPoint(500, 30));
        QVERIFY(!shown.hideTimer->isActive()); // the pointer is back in time

        shown.drag(shown.left, 300, false);
        Gestures::leave();
        shown.timebar->hideLabels();
        QVERIFY(!shown.hideTimer->isActive());
        QCOMPARE(tweens().size(), 0);
        Gestures::hover(shown.timebar, QPoint(500, 30));
        Gestures::release(shown.left);

        shown.drag(shown.left, 300, false);
        shown.timebar->hide(); // in the middle of a drag, with the pointer over it
        QVERIFY(shown.hideTimer->isActive());
        shown.timebar->show();
        Gestures::release(&shown.window);

        shown.timebar->hideLabels();
        QCOMPARE(tweens().constFirst()->duration(), 800);
        shown.timebar->showLabels();
        shown.timebar->hideLabels();
        QCOMPARE(tweens().size(), 3);
        QTRY_COMPARE(shown.opacity(shown.left), 0.0);
        QTRY_COMPARE(tweens().size(), 0);
    }

    void mayDieInTheMiddleOfAnEdit()
    {
        auto timebar = std::make_unique<oVIXTimebarWidget>(nullptr);
        Gestures::show(timebar.get());
        timebar->activateWindow();
        QVERIFY(QTest::qWaitForWindowActive(timebar.get()));
        timebar->showLabels();
        timebar->findChild<QTimer *>()->start(1);
        auto *current = timebar->findChild<OvixMovableLabel *>(u"floatingCurrTime"_s);
        QCOMPARE(current->x(), 20);
        Gestures::doubleClick(current);
        QVERIFY(current->isEditing());
        timebar.reset();
        QTest::qWait(20);
    }

    void takesAnyNumber()
    {
        Shown shown;
        oVIXTimebarWidget *timebar = shown.timebar;
        const QList<int> numbers = {0, lowest, highest, -1, 1, 100000};
        for (const int maximum : numbers) {
            timebar->setMaxValue(maximum);
            for (const int number : numbers) {
                timebar->unblock();
                timebar->updateCachedValue(number);
                timebar->setPlayWidgetFrame(number);
                timebar->setCropValues(number, maximum);
                timebar->setPlayStart(number < 0 ? std::numeric_limits<float>::quiet_NaN() : float(number));
                timebar->timeDragChange();
                timebar->leftCropChanged();
                timebar->cropDragReleased();
                QVERIFY(timebar->getMax() >= 0);
                QVERIFY(std::isfinite(timebar->getCropStartPos()) && std::isfinite(timebar->getCropEndPos()));
            }
        }
    }

    void playsWithoutTouchingSheets()
    {
        Shown shown;
        shown.setOpacity(1.0);
        Events::untilIdle();
        std::vector<std::unique_ptr<Events::Count>> restyled;
        const QList<QWidget *> widgets = shown.timebar->findChildren<QWidget *>();
        for (QWidget *widget : widgets)
            restyled.push_back(std::make_unique<Events::Count>(widget, QEvent::StyleChange));
        Events::Count paints(shown.bar, QEvent::Paint);
        for (int frame = 0; frame < 50; ++frame) {
            shown.timebar->setPlayWidgetFrame(frame);
            Events::untilIdle();
        }
        for (const auto &count : restyled)
            QCOMPARE(count->taken(), 0);
        QCOMPARE(paints.taken(), 50);
        QCOMPARE(shown.current->accessibleName(), u"Current frame"_s);
    }
};

VELMO_TEST_MAIN(TimebarTest)
#include "TimebarTest.moc"
