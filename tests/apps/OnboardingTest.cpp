#include "apps/WindowTest.h"
#include "support/Gestures.h"

#include "oVIXGuideOverlay.h"
#include "onboarding/WidgetStep.h"
#include "window/WorkstationWindow.h"

#include <QAbstractAnimation>
#include <QAction>
#include <QLabel>
#include <QPainter>
#include <QPointer>
#include <QPushButton>
#include <QTest>

using namespace Qt::StringLiterals;

class OnboardingTest : public WindowTest
{
    Q_OBJECT

public:
    OnboardingTest() : WindowTest({{u"Hall"_s, "<actors><actor/></actors>"}}) { }

private slots:
    void everyStepPointsAtAWidget_data()
    {
        QTest::addColumn<bool>("ofScene");
        QTest::addColumn<int>("steps");
        QTest::newRow("start screen") << false << 4;
        QTest::newRow("scene") << true << 5;
    }
    void everyStepPointsAtAWidget()
    {
        QFETCH(bool, ofScene);
        QFETCH(int, steps);
        if (ofScene)
            open();
        action(u"Guided tour"_s)->trigger();
        action(u"Guided tour"_s)->trigger(); // while there is one: nothing
        QCOMPARE(window()->findChildren<oVIXGuideOverlay *>().size(), 1);
        QCOMPARE(tour()->size(), window()->size());
        for (int step = 0; step < steps; ++step, next()) {
            QVERIFY2(tour(), qPrintable(QString::number(step)));
            QVERIFY2((spotSize() > 1000) == (ofScene || step > 0), qPrintable(title()));
        }
        QTRY_VERIFY(!tour());
    }

    void aTourEndsWithItsPage()
    {
        action(u"Guided tour"_s)->trigger();
        open();
        QTRY_VERIFY(!tour());
        action(u"Guided tour"_s)->trigger();
        QCOMPARE(title(), u"The scene"_s);
        window()->closeScene();
        QTRY_VERIFY(!tour());
        action(u"Guided tour"_s)->trigger(); // and the window goes meanwhile
    }

    void aStepWithoutItsWidgetIsDark()
    {
        QWidget window;
        window.resize(400, 300);
        auto *target = new QWidget(&window);
        target->setGeometry(20, 30, 100, 50);
        QPointer<QWidget> found = target;
        WidgetStep step(u"a"_s, u"b"_s, [&found] { return found.data(); });
        QWidget overlay(&window);
        overlay.resize(window.size());
        Gestures::show(&window);
        const auto isLit = [&] {
            QImage picture(overlay.size(), QImage::Format_ARGB32_Premultiplied);
            picture.fill(Qt::transparent);
            QPainter painter(&picture);
            step.paintStep(&painter, &overlay);
            return qAlpha(picture.pixel(70, 55)) == 0 && qAlpha(picture.pixel(300, 200)) > 0;
        };
        QVERIFY(isLit());
        target->hide();
        QVERIFY(!isLit());
        target->show();
        QVERIFY(isLit());
        target->setParent(nullptr); // a window of its own, like a panel that floats
        target->show();
        QVERIFY(!isLit());
        delete target;
        QVERIFY(!isLit());
    }

private:
    oVIXGuideOverlay *tour() const { return window()->findChild<oVIXGuideOverlay *>(); }
    QString title() const { return tour()->findChild<QLabel *>(u"titleLabel"_s)->text(); }

    /// How many pixels of the window the current step leaves bright.
    int spotSize() const
    {
        for (QAbstractAnimation *transition : tour()->findChildren<QAbstractAnimation *>())
            transition->stop();
        tour()->setAnimationProgress(1.0F);
        QImage picture(tour()->size(), QImage::Format_ARGB32_Premultiplied);
        picture.fill(Qt::transparent);
        tour()->render(&picture, QPoint(), QRegion(), QWidget::RenderFlags()); // without the texts
        int size = 0;
        for (int y = 0; y < picture.height(); ++y) {
            for (int x = 0; x < picture.width(); ++x)
                size += qAlpha(picture.pixel(x, y)) == 0 ? 1 : 0;
        }
        return size;
    }

    void next()
    {
        tour()->findChild<QPushButton *>(u"nextButton"_s)->click();
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    }
};

VELMO_TEST_MAIN(OnboardingTest)
#include "OnboardingTest.moc"
