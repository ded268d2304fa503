#include "support/Files.h"
#include "support/TestCase.h"

#include "VelmoVersion.h"
#include "scenes/SceneContentReader.h"
#include "scenes/SceneSaving.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>
#include <QTest>

using namespace Qt::StringLiterals;

class SceneSavingTest : public TestCase
{
    Q_OBJECT

private slots:
    void init()
    {
        TestCase::init();
        m_folder = std::make_unique<QTemporaryDir>();
        write("<VelmoSerializer><camera/><timeline frames=\"40\"/></VelmoSerializer>");
        SceneContentReader reader;
        QVERIFY(reader.read(path(), &m_scene));
        m_scene.setBaked(40);
    }
    void cleanup()
    {
        m_folder.reset();
        TestCase::cleanup();
    }

    void savesAgainAndAgain()
    {
        for (int frames : {40, 20, 0}) {
            m_scene.setBaked(frames);
            const SceneSaving::Outcome outcome = SceneSaving::saveInBackground(m_scene, SceneSaving::ChangedFile::Keep);
            QVERIFY2(outcome.isSaved, qPrintable(outcome.problem));
            QCOMPARE(outcome.scene.version, VelmoVersion::current().toString());
            QCOMPARE(outcome.scene.document, content());
            m_scene = outcome.scene;
            SceneContentReader reader;
            Scene again;
            QVERIFY(reader.read(path(), &again));
            QVERIFY(again == m_scene);
        }
        QCOMPARE(QDir(m_folder->filePath(u"Project"_s)).entryList(QDir::Files | QDir::Hidden), {u"Hall.vscene"_s});
    }

    void whatSomebodyElseHasMadeOfTheFileIsKept()
    {
        write("<VelmoSerializer><camera/><timeline frames=\"41\"/></VelmoSerializer>");
        const QByteArray theirs = content();
        SceneSaving::Outcome outcome = SceneSaving::save(m_scene, SceneSaving::ChangedFile::Keep);
        QVERIFY(!outcome.isSaved && outcome.hasKeptChanged && !outcome.problem.isEmpty());
        QCOMPARE(content(), theirs);
        outcome = SceneSaving::save(m_scene, SceneSaving::ChangedFile::Replace);
        QVERIFY(outcome.isSaved && content().contains("frames=\"40\""));
    }

    void whatHasGoneIsWrittenAnew()
    {
        QVERIFY(QFile::remove(path()));
        QVERIFY(SceneSaving::save(m_scene, SceneSaving::ChangedFile::Keep).isSaved);
        QVERIFY(content().contains("<camera/>"));
        QVERIFY(QFile::remove(path()) && QDir().mkdir(path())); // a folder is in the way
        QVERIFY(!SceneSaving::save(m_scene, SceneSaving::ChangedFile::Replace).isSaved);
        QVERIFY(QDir(m_folder->filePath(u"Project"_s)).removeRecursively());
        const SceneSaving::Outcome outcome = SceneSaving::save(m_scene, SceneSaving::ChangedFile::Keep);
        QVERIFY(!outcome.isSaved && !outcome.hasKeptChanged && outcome.problem.contains(u"Hall"_s));
        QVERIFY(!QFile::exists(path()));
    }

    void aFullDiskLeavesTheFileAsItIs()
    {
        const QByteArray before = content();
        m_scene.document.replace("<camera/>", "<camera/>" + QByteArray(100000, ' '));
        SceneSaving::Outcome outcome;
        if (!Files::onFullDisk([&] { outcome = SceneSaving::save(m_scene, SceneSaving::ChangedFile::Replace); }))
            QSKIP("a disk cannot be full here");
        QVERIFY(!outcome.isSaved && !outcome.problem.isEmpty());
        QCOMPARE(content(), before);
        QCOMPARE(QDir(m_folder->filePath(u"Project"_s)).entryList(QDir::Files | QDir::Hidden), {u"Hall.vscene"_s});
    }

private:
    QString path() const { return m_folder->filePath(u"Project/Hall.vscene"_s); }
    void write(const QByteArray &document) const { Files::write(path(), document); }
    QByteArray content() const { return Files::read(path()); }

    std::unique_ptr<QTemporaryDir> m_folder;
    Scene m_scene;
};

VELMO_TEST_MAIN(SceneSavingTest)
#include "SceneSavingTest.moc"
