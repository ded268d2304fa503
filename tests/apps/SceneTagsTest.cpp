#include "support/TestCase.h"

#include "scenes/Scene.h"
#include "scenes/SceneTags.h"

#include <QTest>

using namespace Qt::StringLiterals;

namespace {

/// Tags "a" and "b" of people, "c" of nobody and one without a name.
Scene sample()
{
    Scene scene;
    scene.tags = {{1, u"a"_s, Qt::red}, {2, u"b"_s, Qt::green}, {3, u"c"_s, Qt::blue}, {4, QString(), Qt::white}};
    scene.people.resize(2);
    scene.people[0].tags = {2, 1};
    scene.people[1].tags = {4};
    scene.vehicles.resize(1);
    scene.vehicles[0].tags = {2};
    SceneTags::setAsideUnused(&scene);
    return scene;
}

QString told(const Scene &scene)
{
    QStringList people;
    for (const SceneMover &person : scene.people) {
        QStringList ids;
        for (const int id : person.tags)
            ids << QString::number(id);
        people << ids.join(u',');
    }
    return SceneTags::assigned(scene).join(u',') + u" | "_s + SceneTags::available(scene).join(u',') + u" | "_s
        + people.join(u';');
}

} // namespace

class SceneTagsTest : public TestCase
{
    Q_OBJECT

private slots:
    void arranges_data()
    {
        QTest::addColumn<QStringList>("assigned");
        QTest::addColumn<QStringList>("available");
        QTest::addColumn<QString>("result");
        const QStringList none;
        const auto names = [](const QString &text) { return text.split(u','); };
        QTest::newRow("as it was") << names(u"b,a"_s) << names(u"c"_s) << u"a,b | c | 2,1;4"_s;
        QTest::newRow("set aside, people keep it") << names(u"a"_s) << names(u"b,c"_s) << u"a | b,c | 2,1;4"_s;
        QTest::newRow("nobody's goes to everybody") << names(u"a,b,c"_s) << none << u"a,b,c |  | 2,1,3;4,3"_s;
        QTest::newRow("deleted") << names(u"a"_s) << names(u"c"_s) << u"a | c | 1;4"_s;
        QTest::newRow("all deleted") << none << none << u" |  | ;4"_s;
        QTest::newRow("new") << names(u"a,b,d"_s) << names(u"c,e"_s) << u"a,b,d | c,e | 2,1,5;4,5"_s;
        QTest::newRow("known in another case") << names(u"a,b"_s) << names(u"A,c"_s) << u"a,b | c | 2,1;4"_s;
        QTest::newRow("in both lists") << names(u"a,C"_s) << names(u"b,c"_s) << u"a,c | b | 2,1,3;4,3"_s;
        QTest::newRow("blank") << names(u"a,b, "_s) << names(u"c,"_s) << u"a,b | c | 2,1;4"_s;
    }
    void arranges()
    {
        QFETCH(QStringList, assigned);
        QFETCH(QStringList, available);
        Scene scene = sample();
        SceneTags::arrange(&scene, assigned, available);
        QTEST(told(scene), "result");
    }

    void whatIsSetAsideComesBack()
    {
        Scene scene = sample();
        QCOMPARE(scene.colourOf(scene.people[0]), QColor(Qt::green));
        SceneTags::arrange(&scene, {u"a"_s}, {u"b"_s, u"c"_s});
        QCOMPARE(scene.colourOf(scene.people[0]), QColor(Qt::red));
        QVERIFY(!scene.colourOf(scene.vehicles[0]).isValid());
        SceneTags::arrange(&scene, {u"a"_s, u"b"_s}, {u"c"_s});
        QCOMPARE(told(scene), told(sample()));
        QCOMPARE(scene.colourOf(scene.vehicles[0]), QColor(Qt::green));
    }

    void tagsOfOneNameCountAsOne()
    {
        Scene scene;
        scene.tags = {{1, u"a"_s, Qt::red}, {2, u"a"_s, Qt::green}, {3, u"b"_s, Qt::blue}, {4, u"b"_s, Qt::white}};
        scene.people.resize(2);
        scene.people[0].tags = {2};
        SceneTags::setAsideUnused(&scene);
        QCOMPARE(told(scene), u"a | b | 2;"_s);
        SceneTags::arrange(&scene, {u"a"_s, u"b"_s}, {});
        QCOMPARE(told(scene), u"a,b |  | 2,3;3"_s);
        SceneTags::arrange(&scene, {}, {u"a"_s, u"b"_s});
        QCOMPARE(told(scene), u" | a,b | 2,3;3"_s);
    }

    void whoHasNoTagsLeftIsAsBefore()
    {
        SceneMover person;
        person.tags.reserve(1); // there are bytes now, unlike in a list that has never had any
        QVERIFY(person == SceneMover());
        person.tags << 1;
        QVERIFY(person != SceneMover());
    }
};

VELMO_TEST_MAIN(SceneTagsTest)
#include "SceneTagsTest.moc"
