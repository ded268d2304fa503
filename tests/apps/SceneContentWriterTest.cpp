#include "support/Files.h"
#include "support/TestCase.h"

#include "VelmoSceneMetadataParser.h"
#include "scenes/ProjectFolder.h"
#include "scenes/SceneContentReader.h"
#include "scenes/SceneContentWriter.h"
#include "scenes/SceneTags.h"
#include "scenes/ShippedProjects.h"

#include <QTemporaryDir>
#include <QTest>

using namespace Qt::StringLiterals;

class SceneContentWriterTest : public TestCase
{
    Q_OBJECT

private slots:
    void anUneditedSceneStaysByteForByte_data()
    {
        QTest::addColumn<QByteArray>("document");
        const QList<ProjectFolder> projects = ProjectFolder::projectsIn(ShippedProjects::folder());
        QVERIFY(!projects.isEmpty());
        for (const ProjectFolder &project : projects) {
            for (const SceneFile &scene : project.scenes()) {
                // The others are there to be refused.
                if (const QByteArray document = Files::read(scene.path); document.contains("</VelmoSerializer>"))
                    QTest::newRow(qPrintable(scene.name)) << document;
            }
        }
    }
    void anUneditedSceneStaysByteForByte()
    {
        QFETCH(QByteArray, document);
        QCOMPARE(write(read(document)), document);
    }

    void readsBackAsTheSameScene_data()
    {
        anUneditedSceneStaysByteForByte_data();
        QTest::newRow("nothing") << QByteArray("<VelmoSerializer/>");
        QTest::newRow("on one line") << QByteArray(
            "<VelmoSerializer><scenemetadata/><camera/><tags/><timeline/><actors><actor/></actors></VelmoSerializer>");
        QTest::newRow("broken values") << QByteArray(
            "<VelmoSerializer><timeline frames='-4' fps='none'><crop first='9' last='2'/></timeline>"
            "<bake last='x'/><crowd count='-1' seed='?'><share/></crowd></VelmoSerializer>");
        QTest::newRow("elements that come twice") << QByteArray(
            "<VelmoSerializer><tags><tag id='1' name='a'/><tag id='1' name='a'/></tags><tags><tag id='2' name='b'/>"
            "</tags><timeline frames='8'/><timeline frames='9'/><crowd count='3'/><crowd count='4'/>"
            "<actors><actor tags='1'/></actors><actors><actor tags='2,1'/></actors></VelmoSerializer>");
        QTest::newRow("elements inside others") << QByteArray(
            "<VelmoSerializer><layer><scenemetadata actorcount='7'/><tag id='3' name='c'/></layer><wall><actor/></wall>"
            "<actor><actor tags='5'/><tag name='no tag'/></actor><actor tags='3'/></VelmoSerializer>");
        QTest::newRow("other encoding") << QByteArray(
            "<?xml version='1.0' encoding='ISO-8859-1'?><VelmoSerializer><tag id='1' name='\xe4'/></VelmoSerializer>");
    }
    void readsBackAsTheSameScene()
    {
        QFETCH(QByteArray, document);
        Scene scene = read(document);
        QCOMPARE(scene.document, document);
        scene.version = u"2.5.1"_s;
        scene.frames = std::max(scene.frames, 40);
        scene.cropFirst = 3;
        scene.cropLast = 17;
        scene.setBaked(18);
        scene.crowd = CrowdSettings::of(scene);
        scene.crowd->spacing = 0.1 + 0.2;
        scene.crowd->shares.append({u"\"<new>\" & 'type'"_s, 100.0 / 3.0});
        const QStringList names = SceneTags::assigned(scene);
        SceneTags::arrange(&scene, names.mid(1) + QStringList{u"\u05db <b> & \"x\"\t "_s},
                           names.mid(0, 1) + SceneTags::available(scene).mid(1) + QStringList{u"idle"_s});
        Scene again = read(write(scene));
        QCOMPARE(again.tags.size(), scene.tags.size());
        const QByteArray written = std::exchange(again.document, scene.document);
        QVERIFY(again == scene);

        again.document = written;
        QCOMPARE(write(again), written); // and nothing is added twice
        again.crowd = CrowdSettings::of(again);
        SceneTags::arrange(&again, {}, {});
        again.setBaked(0);
        Scene emptied = read(write(again));
        emptied.document = written;
        QVERIFY(emptied == again);
    }

    void tellsTheFactsToTheListOfScenes()
    {
        for (const QByteArray &document :
             {QByteArray(
                  "<VelmoSerializer><background name='A &amp; B'/><vehicles><vehicle/></vehicles></VelmoSerializer>"),
              QByteArray("<VelmoSerializer><scenemetadata actorcount='9'/><background name='A &amp; B'/><vehicle/>"
                         "<note/></VelmoSerializer>")}) {
            Scene scene = read(document);
            scene.version = u"2.5.1"_s;
            scene.frames = 94500 * 24;
            scene.framesPerSecond = 23.976;
            scene.crowd.emplace().count = 12;
            scene.setBaked(7);
            write(scene);
            VelmoSceneMetadataParser facts = VelmoSceneMetadataParser::withDefaults();
            QVERIFY(facts.read(path()).ok);
            QCOMPARE(facts.version.toString(), u"2.5.1"_s);
            QCOMPARE(facts.timeFramerate, u"26:16:34 | 23.976"_s);
            QCOMPARE(facts.bakeStatus, u"Partial"_s);
            QCOMPARE(facts.actorCount, u"12"_s);
            QCOMPARE(facts.vehicleCount, u"1"_s);
            QCOMPARE(facts.backgroundName, u"A & B"_s);
        }
    }

    void tellsEveryFactOfASceneThatKnowsNone()
    {
        const Scene scene = read("<VelmoSerializer/>");
        write(scene);
        VelmoSceneMetadataParser facts = VelmoSceneMetadataParser::withDefaults();
        QVERIFY(facts.read(path()).ok);
        QCOMPARE(facts.version.toString(), VelmoVersion::current().toString());
        QCOMPARE(QStringList({facts.bakeStatus, facts.actorCount, facts.vehicleCount, facts.backgroundName}),
                 QStringList({u"Not baked"_s, u"0"_s, u"0"_s, u"None"_s}));
        QVERIFY(!facts.timeFramerate.isEmpty());
    }

    void keepsAllElseAsItIs()
    {
        const QByteArray document = "<?xml version=\"1.0\" encoding=\"UTF-8\" standalone=\"yes\"?>\n"
                                    "<!-- by hand -->\n"
                                    "<!DOCTYPE VelmoSerializer [<!ATTLIST lamp on CDATA \"no\">]>\n"
                                    "<?tool keep?>\n"
                                    "<VelmoSerializer xmlns:x=\"urn:x\">\n"
                                    "    <x:lamp x:tone=\"a&#10;b\"><lamp/></x:lamp>\n"
                                    "    <note><![CDATA[1 < 2]]> &amp;amp; a&#13;b  </note><!-- here -->\n"
                                    "    <scenemetadata version=\"1\" time-fps=\"00:00:00 | 25\" bakestatus=\"Baked\""
                                    " actorcount=\"1\" vehiclescount=\"0\" background-name=\"None\" mood=\"good\"/>\n"
                                    "    <timeline fps=\"25.0\"><crop  last=\"007\"/></timeline>\n"
                                    "    <bake status=\"Baked\"/>\n"
                                    "    <tags>\n"
                                    "        <tag id=\"1\" name=\"vip\" why=\"asked\"/>\n"
                                    "        <tag id=\"2\" name=\"gone\"/>\n"
                                    "    </tags>\n"
                                    "    <actor tags=\"1,2\" hat=\"red\"><tag/></actor>\n"
                                    "</VelmoSerializer>\n";
        Scene scene = read(document);
        QCOMPARE(write(scene), QByteArray(document).replace("<crop  last", "<crop last"));
        SceneTags::arrange(&scene, {u"late"_s}, {u"vip"_s});
        QCOMPARE(write(scene),
                 QByteArray(document)
                     .replace("<crop  last", "<crop last")
                     .replace("why=\"asked\"/>", "why=\"asked\" assigned=\"false\"/>")
                     .replace("<tag id=\"2\" name=\"gone\"/>", "<tag id=\"2\" name=\"late\" color=\"#f9c71a\"/>"));
    }

    void aTextThatNoDocumentCanHoldDoesNoHarm()
    {
        Scene scene = read("<VelmoSerializer/>");
        scene.tags.append({1, u"a\x1b[0m\xfffe"_s + QChar(0xd800), {}, true});
        QCOMPARE(read(write(scene)).tags.value(0).name.left(4), u"a[0m"_s);
        scene.document = "<VelmoSerializer><cut>";
        SceneContentWriter writer(scene);
        QVERIFY(!writer.write());
        QVERIFY(!writer.problem().isEmpty());
    }

private:
    QString path() const { return m_folder.filePath(u"Hall.vscene"_s); }

    Scene read(const QByteArray &document) const
    {
        Files::write(path(), document);
        Scene scene;
        SceneContentReader reader;
        if (!reader.read(path(), &scene))
            scene.name = reader.problem(); // no test's
        return scene;
    }
    QByteArray write(const Scene &scene) const
    {
        SceneContentWriter writer(scene);
        if (!writer.write())
            return writer.problem().toUtf8();
        read(writer.document());
        return writer.document();
    }

    QTemporaryDir m_folder;
};

VELMO_TEST_MAIN(SceneContentWriterTest)
#include "SceneContentWriterTest.moc"
