#include "support/Files.h"
#include "support/TestCase.h"

#include "VelmoSceneMetadataParser.h"
#include "scenes/ProjectFolder.h"
#include "scenes/SceneNames.h"

#include <QDir>
#include <QFile>
#include <QScopeGuard>
#include <QTemporaryDir>
#include <QTest>

using namespace Qt::StringLiterals;

class ProjectFolderTest : public TestCase
{
    Q_OBJECT

private slots:
    void init()
    {
        TestCase::init();
        m_folder = std::make_unique<QTemporaryDir>();
        QVERIFY(m_folder->isValid());
    }
    void cleanup()
    {
        m_folder.reset();
        TestCase::cleanup();
    }

    void listsSubFoldersAndSceneFilesByName()
    {
        const QDir folder(m_folder->path());
        QVERIFY(folder.mkdir(u"stadium"_s) && folder.mkdir(u"Airport"_s) && folder.mkdir(u"Station"_s));
        QStringList names;
        for (const ProjectFolder &project : ProjectFolder::projectsIn(m_folder->path()))
            names << project.name();
        QCOMPARE(names, QStringList({u"Airport"_s, u"stadium"_s, u"Station"_s}));
        QVERIFY(ProjectFolder::projectsIn(folder.filePath(u"none"_s)).isEmpty());
        for (const QString &name : {u"b.vscene"_s, u"A.VSCENE"_s, u"c.v2.vscene"_s, u"d.txt"_s, u".vscene"_s})
            write(name, "");
        QVERIFY(folder.mkdir(u"folder.vscene"_s));
        names.clear();
        for (const SceneFile &scene : project().scenes())
            names << scene.name;
        QCOMPARE(names, QStringList({u"A"_s, u"b"_s, u"c.v2"_s}));
    }

    void renamesOnlyToNamesThatAreFree_data()
    {
        QTest::addColumn<QString>("newName");
        QTest::addColumn<QString>("newFile");
        QTest::newRow("free") << u"Hall"_s << u"Hall.VScene"_s;
        QTest::newRow("case only") << u"SQUARE"_s << u"SQUARE.VScene"_s;
        QTest::newRow("taken in another case") << u"OTHER"_s << QString();
        QTest::newRow("out of the folder") << u"../Hall"_s << QString();
    }
    void renamesOnlyToNamesThatAreFree()
    {
        QFETCH(QString, newName);
        QFETCH(QString, newFile);
        write(u"Square.VScene"_s, "square");
        write(u"other.VScene"_s, "other");

        const SceneFile scene{u"Square"_s, path(u"Square.VScene"_s)};
        const ProjectFolder::Change change = project().renameScene(scene, newName);
        QCOMPARE(change.problem.isEmpty(), !newFile.isEmpty());
        const QString file = newFile.isEmpty() ? u"Square.VScene"_s : newFile;
        QCOMPARE(change.scene.path, path(file));
        QCOMPARE(change.scene.name, newFile.isEmpty() ? scene.name : newName);
        QCOMPARE(QDir(m_folder->path()).entryList(QDir::Files).size(), 2);
        QCOMPARE(read(file), "square");
        QCOMPARE(read(u"other.VScene"_s), "other");
    }

    void newScenesAreCompleteAndNeverReplaceAFile()
    {
        QVERIFY(!project().renameScene({u"gone"_s, path(u"gone.vscene"_s)}, u"new"_s).problem.isEmpty());
        QVERIFY(!ProjectFolder(path(u"no folder"_s)).addScene().problem.isEmpty());
        write(u"new SCENE.vscene"_s, "mine");
        write(u"New scene 4.vscene"_s, "");
        QVERIFY(QDir(m_folder->path()).mkdir(u"New scene 2.vscene"_s));
        const ProjectFolder::Change change = project().addScene();
        QCOMPARE(change.problem, QString());
        QCOMPARE(change.scene.name, u"New scene 3"_s);
        QCOMPARE(read(u"new SCENE.vscene"_s), "mine");

        VelmoSceneMetadataParser metadata;
        QVERIFY(metadata.read(change.scene.path).ok);
        QCOMPARE(metadata.version.toString(), VelmoVersion::current().toString());
        QCOMPARE(metadata.actorCount, u"0"_s);
        QCOMPARE(metadata.vehicleCount, u"0"_s);
        for (const QString &text : {metadata.timeFramerate, metadata.bakeStatus, metadata.backgroundName})
            QVERIFY(!text.isEmpty());
    }

    void clonesAreWholeAndNeverReplaceAFile()
    {
        const QByteArray content = QByteArray("line\n").repeated(500000); // more than one block
        write(u"Hall.vscene"_s, content);
        write(u"HALL COPY.vscene"_s, "mine");
        const ProjectFolder::Change change = project().cloneScene({u"Hall"_s, path(u"Hall.vscene"_s)});
        QCOMPARE(change.problem, QString());
        QCOMPARE(change.scene.name, u"Hall copy 2"_s);
        QCOMPARE(read(u"Hall copy 2.vscene"_s), content);
        QCOMPARE(read(u"HALL COPY.vscene"_s), "mine");

        const QString longName(246, u'x');
        write(longName + u".vscene"_s, "");
        QVERIFY(!project().cloneScene({longName, path(longName + u".vscene"_s)}).problem.isEmpty());
        QVERIFY(!project().cloneScene({u"gone"_s, path(u"gone.vscene"_s)}).problem.isEmpty());
        QCOMPARE(QDir(m_folder->path()).entryList(QDir::Files).size(), 4);
    }

    void deletedScenesAreInTheTrash()
    {
        QTemporaryDir data;
        qputenv("XDG_DATA_HOME", data.path().toLocal8Bit());
        const auto restore = qScopeGuard([] { qunsetenv("XDG_DATA_HOME"); });
        write(u"Hall.vscene"_s, "hall");
        const SceneFile scene{u"Hall"_s, path(u"Hall.vscene"_s)};
        QCOMPARE(project().deleteScene(scene).problem, QString());
        QVERIFY(!QFile::exists(scene.path));
#ifdef Q_OS_LINUX
        QCOMPARE(Files::read(data.filePath(u"Trash/files/Hall.vscene"_s)), "hall");
#endif
        QVERIFY(!project().deleteScene(scene).problem.isEmpty());
    }

    void removesForGood()
    {
        write(u"Hall.vscene"_s, "hall");
        const SceneFile scene{u"Hall"_s, path(u"Hall.vscene"_s)};
        QCOMPARE(project().removeScene(scene).problem, QString());
        QVERIFY(!QFile::exists(scene.path));
        QVERIFY(!project().removeScene(scene).problem.isEmpty());
    }

    void aFolderInPlaceOfAFileStays()
    {
        const SceneFile scene{u"Hall"_s, path(u"Hall.vscene"_s)};
        QVERIFY(QDir().mkdir(scene.path));
        for (const ProjectFolder::Change &change :
             {project().renameScene(scene, u"Gate"_s), project().cloneScene(scene), project().deleteScene(scene),
              project().removeScene(scene)})
            QVERIFY(!change.problem.isEmpty());
        QCOMPARE(QDir(m_folder->path()).entryList(QDir::AllEntries | QDir::NoDotAndDotDot), {u"Hall.vscene"_s});
    }

    void aFullDiskLeavesNothingBehind()
    {
        write(u"Hall.vscene"_s, QByteArray(100000, 'x'));
        ProjectFolder::Change change;
        const SceneFile scene{u"Hall"_s, path(u"Hall.vscene"_s)};
        if (!Files::onFullDisk([&] { change = project().cloneScene(scene); }))
            QSKIP("a disk cannot be full here");
        QVERIFY(!change.problem.isEmpty());
        QCOMPARE(QDir(m_folder->path()).entryList(QDir::Files | QDir::Hidden), {u"Hall.vscene"_s});
        QCOMPARE(read(u"Hall.vscene"_s).size(), 100000);
    }

    void refusesWhatAnySystemRefuses()
    {
        for (const QString &name : {u"Platform 2 (evening)"_s, u"v2.1"_s, u"Überführung"_s, u"  leading"_s,
                                    u"CONsole"_s, u"COM12"_s, u"a'b"_s, QString(241, u'x')})
            QVERIFY2(SceneNames::problem(name).isEmpty(), qPrintable(name));
        for (const QString &name : {u""_s,
                                    u"a/b"_s,
                                    u"a\\b"_s,
                                    u"a:b"_s,
                                    u"what?"_s,
                                    u"*"_s,
                                    u"<b>"_s,
                                    u"\"quoted\""_s,
                                    u"a|b"_s,
                                    u"a\nb"_s,
                                    u"a\x7f"_s,
                                    u".hidden"_s,
                                    u".."_s,
                                    u"dot."_s,
                                    u"blank "_s,
                                    u"con"_s,
                                    u"Aux.backup"_s,
                                    u"com1"_s,
                                    u"LPT\u00b2"_s,
                                    u"conout$"_s,
                                    QString(242, u'x'),
                                    QString(130, u'ü'),
                                    QString(QChar(0xd800))})
            QVERIFY2(!SceneNames::problem(name).isEmpty(), qPrintable(name));
    }

private:
    ProjectFolder project() const
    {
        return ProjectFolder(m_folder->path());
    }
    QString path(const QString &fileName) const
    {
        return QDir(m_folder->path()).filePath(fileName);
    }

    void write(const QString &fileName, const QByteArray &content) const
    {
        Files::write(path(fileName), content);
    }
    QByteArray read(const QString &fileName) const
    {
        return Files::read(path(fileName));
    }

    std::unique_ptr<QTemporaryDir> m_folder;
};

VELMO_TEST_MAIN(ProjectFolderTest)
#include "ProjectFolderTest.moc"
