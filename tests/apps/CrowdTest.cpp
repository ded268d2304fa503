#include "support/Events.h"
#include "support/TestCase.h"

#include "simulation/Bake.h"
#include "simulation/Crowd.h"

#include <QSignalSpy>
#include <QTest>
#include <QThread>

using namespace Qt::StringLiterals;

class CrowdTest : public TestCase
{
    Q_OBJECT

private slots:
    void walksToItsGoal()
    {
        Crowd crowd(sceneWith({walker({0, 0}, {10, 0})}), settingsFor(1));
        for (int step = 0; step < 100; ++step)
            crowd.step(0.1);
        const QPointF end = crowd.positions().first();
        QVERIFY2(std::hypot(end.x() - 10, end.y()) <= 0.6, qPrintable(QString::number(end.x())));
    }

    void turnsNoFasterThanItCan()
    {
        Crowd crowd(sceneWith({walker({0, 0}, {-10, 0})}), settingsFor(1));
        crowd.step(0.5); // 90 degrees a second: half of the way round
        QCOMPARE(crowd.people().first().heading, 45.0);
        QVERIFY(crowd.positions().first().x() > 0);
    }

    void keepsApart()
    {
        CrowdSettings settings = settingsFor(2);
        settings.spacing = 1.0;
        SceneMover one = walker({0, 0}, {});
        SceneMover other = walker({0.2, 0}, {});
        one.hasGoal = other.hasGoal = false;
        Crowd crowd(sceneWith({one, other}), settings);
        for (int step = 0; step < 100; ++step)
            crowd.step(0.1);
        const QList<QPointF> ends = crowd.positions();
        QVERIFY(ends[1].x() - ends[0].x() > 0.95);
    }

    void isMadeAsTheSettingsSay()
    {
        CrowdSettings settings = settingsFor(30);
        settings.slowest = 1.0;
        settings.fastest = 2.0;
        settings.shares = {{u"adult"_s, 80}, {u"child"_s, 20}};
        const auto facts = [&settings](int seed) {
            settings.seed = seed;
            int children = 0;
            QString told;
            const QList<SceneMover> people = Crowd(sceneWith({walker({1, 2}, {3, 4})}), settings).people();
            for (const SceneMover &person : people) {
                children += person.type == u"child"_s;
                if (person.preferredSpeed < 1.0 || person.preferredSpeed > 2.0)
                    return u"too fast or slow"_s;
                told += u"%1 %2 "_s.arg(person.type, QString::number(person.position.x()));
            }
            return u"%1 of %2: "_s.arg(children).arg(people.size()) + told;
        };
        QVERIFY2(facts(1).startsWith(u"6 of 30"_s), qPrintable(facts(1)));
        QCOMPARE(facts(1), facts(1));
        QVERIFY(facts(1) != facts(2));
        settings.count = 0;
        QCOMPARE(facts(1), u"0 of 0: "_s);
        settings.count = 5; // and a scene without anybody
        QCOMPARE(Crowd(Scene(), settings).positions().size(), 5);
    }

    void bakesWhatWalkingGives()
    {
        const Scene scene = sceneWith({walker({0, 0}, {10, 5}), walker({3, 0}, {-10, 5})});
        Bake bake;
        QSignalSpy stopped(&bake, &Bake::stopped);
        bake.start(scene, settingsFor(2), 50, 10);
        QTRY_COMPARE(stopped.size(), 1);
        QCOMPARE(bake.computedFrames(), 50);
        Crowd crowd(scene, settingsFor(2));
        QCOMPARE(bake.positions(0), crowd.positions());
        for (int step = 0; step < 49; ++step)
            crowd.step(0.1);
        QCOMPARE(bake.positions(49), crowd.positions());
        QCOMPARE(bake.positions(50), QList<QPointF>());

        bake.start(scene, settingsFor(1), 1, 10);
        QTRY_COMPARE(bake.computedFrames(), 1);
        QThread::msleep(20); // the thread's end is on its way
        bake.stop();
        QVERIFY(Events::untilIdle());
        QCOMPARE(stopped.size(), 2);

        bake.start(scene, settingsFor(2000), 100000, 10);
        bake.stop();
        QCOMPARE(stopped.size(), 3);
        QVERIFY(!bake.isRunning() && bake.computedFrames() < 100000);
        bake.clear();
        QCOMPARE(bake.positions(0), QList<QPointF>());
        bake.start(scene, settingsFor(2000), 100000, 10); // and it goes meanwhile
    }

private:
    static SceneMover walker(QPointF from, QPointF to)
    {
        SceneMover mover;
        mover.position = from;
        mover.goal = to;
        mover.hasGoal = true;
        return mover;
    }
    static Scene sceneWith(const QList<SceneMover> &people)
    {
        Scene scene;
        scene.people = people;
        return scene;
    }
    static CrowdSettings settingsFor(int count)
    {
        CrowdSettings settings;
        settings.count = count;
        settings.slowest = settings.fastest = 1.5;
        settings.turnRate = 90.0;
        return settings;
    }
};

VELMO_TEST_MAIN(CrowdTest)
#include "CrowdTest.moc"
