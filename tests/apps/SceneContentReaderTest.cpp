#include "support/Files.h"
#include "support/TestCase.h"

#include "scenes/SceneContentReader.h"

#include <QTemporaryDir>
#include <QTest>

using namespace Qt::StringLiterals;

class SceneContentReaderTest : public TestCase
{
    Q_OBJECT

private slots:
    void readsWhatTheFileHolds()
    {
        Scene scene;
        QVERIFY(
            read("<VelmoSerializer><scenemetadata version=\"2.1\" bakestatus=\"Baked\"/>"
                 "<background name=\"Hall\" width=\"40\" depth=\"20\"><wall><point x=\"1\" y=\"2\"/><odd><point/></odd>"
                 "<point x=\"3\" y=\"-4\"/></wall></background>"
                 "<tags><tag id=\"7\" name=\"staff\" color=\"#74d3fc\"/></tags>"
                 "<actors><actor name=\"A\" type=\"guard\" tags=\"9,7\"><position x=\"nan\" y=\"1e99\" heading=\"90\"/>"
                 "<goal x=\"5\" y=\"6\"/><speed preferred=\"x\" maximum=\"3\"/></actor><actor/></actors>"
                 "<vehicles><vehicle/></vehicles></VelmoSerializer>",
                 &scene));
        QCOMPARE(scene.name, u"Hall 1"_s);
        QCOMPARE(scene.version, u"2.1"_s);
        QCOMPARE(scene.bakeStatus, u"Baked"_s);
        QCOMPARE(scene.bounds(), QRectF(-20, -10, 40, 20));
        QCOMPARE(scene.walls, QList<QPolygonF>{QPolygonF({QPointF(1, 2), QPointF(3, -4)})});
        QCOMPARE(scene.people.size(), 2);
        const SceneMover &guard = scene.people.first();
        QCOMPARE(guard.type, u"guard"_s);
        QCOMPARE(guard.position, QPointF(0, 0)); // what is no sensible number counts as none
        QCOMPARE(guard.goal, QPointF(5, 6));
        QVERIFY(guard.hasGoal && !scene.people.last().hasGoal);
        QCOMPARE(guard.preferredSpeed, 1.4);
        QCOMPARE(guard.maximumSpeed, 3.0);
        QCOMPARE(scene.colourOf(guard), QColor(116, 211, 252));
        QVERIFY(!scene.colourOf(scene.people.last()).isValid());
        QCOMPARE(scene.vehicles.size(), 1);

        QVERIFY(read("<VelmoSerializer/>", &scene));
        QVERIFY(scene.bounds().width() > 0 && scene.bounds().height() > 0);
    }

    void saysWhatIsWrong()
    {
        Scene scene;
        QVERIFY(!read("<notes/>", &scene));
        QVERIFY2(m_problem.contains(u"not a scene"_s), qPrintable(m_problem));
        QVERIFY(!read("<VelmoSerializer>\n<actors><actor>", &scene));
        QVERIFY2(m_problem.contains(u"line 2"_s), qPrintable(m_problem));
        for (const QString &path : {m_folder.filePath(u"none.vscene"_s), m_folder.path()}) {
            SceneContentReader reader;
            QVERIFY(!reader.read(path, &scene));
            QVERIFY(!reader.problem().isEmpty());
        }
    }

    void tellsHowFarItIsAndStops()
    {
        const QByteArray document =
            "<VelmoSerializer><actors>" + QByteArray("<actor/>").repeated(40000) + "</actors></VelmoSerializer>";
        Scene scene;
        QList<int> percents;
        QVERIFY(read(document, &scene, [&percents](int percent) { percents << percent; }));
        QVERIFY(std::is_sorted(percents.cbegin(), percents.cend()));
        QVERIFY(percents.size() > 10);
        QCOMPARE(percents.last(), 100);
        m_cancelAt = 100;
        QVERIFY(!read(document, &scene));
        QVERIFY(scene.people.size() <= m_cancelAt);
        QVERIFY(!read("<VelmoSerializer><wall>" + QByteArray("<point/>").repeated(40000) + "</wall></VelmoSerializer>",
                      &scene));
        QVERIFY(scene.walls.first().size() <= m_cancelAt + 1);
    }

private:
    bool read(const QByteArray &content, Scene *scene, const std::function<void(int)> &onPercent = {})
    {
        const QString path = m_folder.filePath(u"Hall 1.vscene"_s);
        Files::write(path, content);
        SceneContentReader reader;
        reader.onPercent = onPercent;
        int asked = 0;
        reader.isCancelled = [&asked, this] { return m_cancelAt > 0 && ++asked > m_cancelAt; };
        const bool good = reader.read(path, scene);
        m_problem = reader.problem();
        return good;
    }

    QTemporaryDir m_folder;
    QString m_problem;
    int m_cancelAt = 0;
};

VELMO_TEST_MAIN(SceneContentReaderTest)
#include "SceneContentReaderTest.moc"
