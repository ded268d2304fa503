#include "support/Events.h"
#include "support/Gestures.h"
#include "support/Picture.h"
#include "support/TestCase.h"

#include "foundation/OvixSvgButton.h"
#include "frame/DialogPlacement.h"
#include "frame/NativeWindowApi.h"
#include "frame/TitleText.h"
#include "frame/oVIXDialog.h"
#include "frame/oVIXDialogTitle.h"
#include "frame/oVIXWindowWait.h"

#include <QLabel>
#include <QMouseEvent>
#include <QScopeGuard>
#include <QScreen>
#include <QSignalSpy>
#include <QTest>
#include <QVBoxLayout>

using namespace Qt::StringLiterals;

class DialogTest : public TestCase
{
    Q_OBJECT

private slots:
    void writesItsTitleAsTyped()
    {
        QCOMPARE(whiteAndGrey(u"Save <b> as: "_s, u"a & b"_s),
                 u"<font color=\"#ffffff\"> Save&nbsp;&lt;b&gt;&nbsp;as:&nbsp;</font>"
                 "<font color=\"#9c9c9c\"> a&nbsp;&amp;&nbsp;b</font>"_s);
        QVERIFY(whiteAndGrey(u"%1"_s, u"%2"_s).contains(u"%1<"_s));
    }

    void endsALongTitleInAnEllipsis()
    {
        oVIXDialogTitle title(nullptr);
        QLabel *label = title.findChildren<QLabel *>(QString(), Qt::FindDirectChildrenOnly).last();
        for (const auto &[white, grey] :
             {std::pair{u"Scene"_s, QString(200, u'W')}, {QString(200, u'W'), u"Scene"_s}}) {
            title.setTitle(white, grey);
            title.resize(300, title.height());
            title.layout()->activate();
            QVERIFY(label->geometry().right() < 300 - 32); // the button
            const QRect drawn = Picture::drawnArea(
                Picture::of(label).copy(0, 0, label->width(), label->height() / 2)); // above the dots
            QVERIFY(drawn.width() > 200 && drawn.right() < label->width() - 5);
            QVERIFY(label->text().contains(QString(200, u'W')));
        }
    }

    void goesToTheMiddle_data()
    {
        QTest::addColumn<QPoint>("centre");
        QTest::addColumn<QSize>("size");
        QTest::addColumn<QPoint>("place");
        QTest::newRow("middle") << QPoint(400, 300) << QSize(200, 100) << QPoint(301, 251);
        QTest::newRow("above") << QPoint(400, -300) << QSize(200, 100) << QPoint(301, 0);
        QTest::newRow("below") << QPoint(400, 900) << QSize(200, 100) << QPoint(301, 499);
        QTest::newRow("too tall") << QPoint(400, 300) << QSize(200, 900) << QPoint(301, 0);
        QTest::newRow("beside the screen") << QPoint(-400, 300) << QSize(200, 100) << QPoint(-499, 251);
    }
    void goesToTheMiddle()
    {
        QFETCH(QPoint, centre);
        QFETCH(QSize, size);
        QTEST(centredOn(centre, size, QRect(0, 0, 800, 600)), "place");
    }

    void findsTheScreenOfANativeWindow()
    {
        const QList<QRect> screens{{0, 0, 10, 10}, {100, 0, 10, 10}, {0, 100, 10, 10}};
        QCOMPARE(nearestTopLeft(screens, {90, 5}), 1);
        QCOMPARE(nearestTopLeft(screens, {50, 0}), 0);
        QCOMPARE(nearestTopLeft({}, {0, 0}), -1);

        NativeWindowApi &native = NativeWindowApi::instance();
        const NativeWindowApi before = native;
        const auto restore = qScopeGuard([&] { native = before; });
        QScreen *primary = QGuiApplication::primaryScreen();
        QCOMPARE(oVIXDialog::detectPrimaryScreen(nullptr), primary);
        native.monitorRectOfWindow = [](void *, int *, int *, int *, int *) { return false; };
        QTest::ignoreMessage(QtDebugMsg, "Unable to get monitor from window handle");
        QCOMPARE(oVIXDialog::detectPrimaryScreen(&native), primary);
        native.monitorRectOfWindow = nullptr;
        QCOMPARE(oVIXDialog::detectPrimaryScreen(&native), primary);
    }

    void makesRoomForItsTitleOnce()
    {
        QWidget window;
        window.setGeometry(100, 100, 500, 400);
        Gestures::show(&window);
        oVIXDialog dialog(false, false, false, &window, nullptr);
        auto *layout = new QVBoxLayout(&dialog);
        layout->setContentsMargins(1, 2, 3, 4);
        dialog.resize(200, 100);
        for (int shown = 0; shown < 2; ++shown) {
            Gestures::show(&dialog);
            QCOMPARE(layout->contentsMargins(), QMargins(1, 32, 3, 4));
            QCOMPARE(dialog.size(), QSize(200, 130));
            dialog.hide();
        }
        QVERIFY((dialog.geometry().center() - window.geometry().center()).manhattanLength() <= 1);
        Gestures::show(&dialog);
        dialog.resize(300, 130);
        QCOMPARE(dialog.findChild<oVIXDialogTitle *>()->width(), 300);
    }

    void growsWithItsContentBetweenShows()
    {
        oVIXDialog dialog(false, false, false, nullptr, nullptr);
        auto *label = new QLabel(u"short"_s);
        label->setMinimumWidth(1);
        (new QVBoxLayout(&dialog))->addWidget(label);
        Gestures::show(&dialog);
        dialog.hide();
        label->setText(u"far longer "_s.repeated(4));
        Gestures::show(&dialog);
        QVERIFY(label->width() >= label->sizeHint().width());
    }

    void closesOnlyWhenItMay()
    {
        oVIXDialog dialog(true, true, false, nullptr, nullptr);
        dialog.resize(300, 200);
        Gestures::show(&dialog);
        QSignalSpy rejected(&dialog, &QDialog::rejected);
        const auto tryAll = [&dialog] {
            QTest::keyClick(&dialog, Qt::Key_Escape);
            dialog.close();
            Gestures::click(dialog.findChild<OvixSvgButton *>());
        };
        dialog.setCloseEnabled(false);
        tryAll();
        dialog.setCloseEnabled(true);
        dialog.startWaitWithText();
        QVERIFY(dialog.getWindowWait()->isTextVisible() && !dialog.getWindowWait()->isPercentVisible());
        tryAll();
        dialog.endWait();
        {
            QDialog above(&dialog);
            above.setModal(true);
            above.show();
            QVERIFY(Events::untilIdle());
            dialog.reject();
        }
        QVERIFY(Events::untilIdle());
        QVERIFY(dialog.isVisible());
        QCOMPARE(rejected.size(), 0);
        dialog.close();
        QVERIFY(!dialog.isVisible());
        QCOMPARE(rejected.size(), 1);

        oVIXDialog bare(false, false, true, nullptr, nullptr);
        QVERIFY(bare.windowFlags().testFlag(Qt::WindowStaysOnTopHint));
        bare.startWaitWithPercent();
        bare.endWait();
        QVERIFY(!bare.getWindowWait());
    }

    void isDraggedByItsTitleWhenAllowed()
    {
        oVIXDialog dialog(false, false, false, nullptr, nullptr);
        dialog.resize(300, 200);
        Gestures::show(&dialog);
        auto *title = dialog.findChild<oVIXDialogTitle *>();
        const auto send = [title](QEvent::Type type, QPoint global, Qt::MouseButton button) {
            QMouseEvent event(type, QPointF(5, 5), global, button, button, {});
            QCoreApplication::sendEvent(title, &event);
            return event.isAccepted();
        };
        const QPoint before = dialog.pos();
        QVERIFY(!send(QEvent::MouseButtonPress, {50, 50}, Qt::LeftButton));
        dialog.setDragEnabled(true);
        QVERIFY(!send(QEvent::MouseButtonPress, {50, 50}, Qt::RightButton));
        QVERIFY(send(QEvent::MouseButtonPress, {50, 50}, Qt::LeftButton));
        QVERIFY(send(QEvent::MouseMove, {57, 40}, Qt::LeftButton));
        QVERIFY(send(QEvent::MouseButtonRelease, {57, 40}, Qt::LeftButton));
        QVERIFY(!send(QEvent::MouseMove, {90, 90}, Qt::LeftButton));
        QCOMPARE(dialog.pos(), before + QPoint(7, -10));
    }
};

VELMO_TEST_MAIN(DialogTest)
#include "DialogTest.moc"
