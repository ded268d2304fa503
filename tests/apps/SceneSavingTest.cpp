#include "support/TestCase.h"

#include "VelmoVersion.h"
#include "scenes/SceneContentReader.h"
#include "scenes/SceneSaving.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>
#include <QTest>

#ifdef Q_OS_UNIX
#include <csignal>
#include <sys/resource.h>
#endif

using namespace Qt::StringLiterals;

class SceneSavingTest : public TestCase
{
    Q_OBJECT

private slots:
    void init()
    {
        TestCase::init();
        m_folder = std::make_unique<QTemporaryDir>();
        QVERIFY(QDir(m_folder->path()).mkdir(u"Project"_s));
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

#ifdef Q_OS_UNIX
    void aFullDiskLeavesTheFileAsItIs()
    {
        const QByteArray before = content();
        m_scene.document.replace("<camera/>", "<camera/>" + QByteArray(100000, ' '));
        rlimit limit{};
        QCOMPARE(getrlimit(RLIMIT_FSIZE, &limit), 0);
        const auto handler = std::signal(SIGXFSZ, SIG_IGN);
        const rlimit little{50000, limit.rlim_max}; // as if there were no more space
        QCOMPARE(setrlimit(RLIMIT_FSIZE, &little), 0);
        const SceneSaving::Outcome outcome = SceneSaving::save(m_scene, SceneSaving::ChangedFile::Replace);
        setrlimit(RLIMIT_FSIZE, &limit);
        std::signal(SIGXFSZ, handler);
        QVERIFY(!outcome.isSaved && !outcome.problem.isEmpty());
        QCOMPARE(content(), before);
        QCOMPARE(QDir(m_folder->filePath(u"Project"_s)).entryList(QDir::Files | QDir::Hidden), {u"Hall.vscene"_s});
    }
#endif

private:
    QString path() const
    {
        return m_folder->filePath(u"Project/Hall.vscene"_s);
    }
    void write(const QByteArray &document) const
    {
        QFile file(path());
        QVERIFY(file.open(QIODevice::WriteOnly));
        file.write(document);
    }
    QByteArray content() const
    {
        QFile file(path());
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
    }

    std::unique_ptr<QTemporaryDir> m_folder;
    Scene m_scene;
};

VELMO_TEST_MAIN(SceneSavingTest)
#include "SceneSavingTest.moc"
