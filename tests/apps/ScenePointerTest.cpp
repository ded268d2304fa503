#include "support/Gestures.h"
#include "support/TestCase.h"

#include "VelmoCursor.h"
#include "window/MoverAt.h"
#include "window/SceneView.h"

#include <QSignalSpy>
#include <QTest>

using namespace Qt::StringLiterals;

class ScenePointerTest : public TestCase
{
    Q_OBJECT

private slots:
    void findsTheNearestThatIsShown()
    {
        Scene scene;
        scene.people = {mover(u"adult"_s, {0, 0}), mover(u"child"_s, {1, 0})};
        scene.vehicles = {mover(u"tram"_s, {50, 0})};
        const auto typeAt = [&scene](const ViewOptions &options, QPointF point) {
            const SceneMover *found = moverAt(scene, options, QTransform::fromScale(10, -10), point);
            return found ? found->type : QString();
        };
        ViewOptions options;
        QCOMPARE(typeAt(options, {4, 0}), u"adult"_s);
        QCOMPARE(typeAt(options, {6, 0}), u"child"_s);
        QCOMPARE(typeAt(options, {0, 7}), QString());
        QCOMPARE(typeAt(options, {510, 0}), u"tram"_s);
        options.vehicles = false;
        QCOMPARE(typeAt(options, {510, 0}), QString());
        options.mode = ViewOptions::Mode::Density; // nobody is drawn
        QCOMPARE(typeAt(options, {0, 0}), QString());
    }

    void thePointerTellsWhatAPressDoes()
    {
        SceneView view;
        view.resize(400, 400);
        Scene scene;
        scene.ground = QSizeF(100, 100);
        scene.people = {mover(u"adult"_s, {0, 0})};
        view.setScene(scene);
        Gestures::show(&view);
        const auto hasPointer = [&view](VelmoCursor::Shape shape) {
            return view.cursor() == VelmoCursor::cursorFor(shape, &view);
        };
        const QPoint person(200, 200);
        const QPoint ground(60, 60);
        QSignalSpy picked(&view, &SceneView::moverPicked);

        QTest::mouseMove(&view, ground);
        QTRY_VERIFY(hasPointer(VelmoCursor::OpenHand));
        QTest::mouseMove(&view, person);
        QTRY_VERIFY(hasPointer(VelmoCursor::Pick));
        QTest::mouseClick(&view, Qt::LeftButton, {}, person);
        QCOMPARE(picked.takeLast().first().toString(), u"adult"_s);
        QTest::mouseClick(&view, Qt::LeftButton, {}, ground);
        QCOMPARE(picked.takeLast().first().toString(), QString());

        Gestures::turnWheel(&view);
        QVERIFY(hasPointer(VelmoCursor::Zoom));

        QTest::mousePress(&view, Qt::LeftButton, {}, person);
        Gestures::send(&view, QEvent::MouseMove, ground);
        QVERIFY(hasPointer(VelmoCursor::ClosedHand));
        QTest::mouseRelease(&view, Qt::LeftButton, {}, ground);
        QVERIFY(hasPointer(VelmoCursor::Pick)); // the person has come along
        QVERIFY(picked.isEmpty());
    }

private:
    static SceneMover mover(const QString &type, QPointF position)
    {
        SceneMover mover;
        mover.type = type;
        mover.position = position;
        return mover;
    }
};

VELMO_TEST_MAIN(ScenePointerTest)
#include "ScenePointerTest.moc"
