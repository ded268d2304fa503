#include "support/Files.h"
#include "support/TestCase.h"

#include "scenes/SceneReader.h"

#include <QDir>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QTest>
#include <QThreadPool>

using namespace Qt::StringLiterals;

class SceneReaderTest : public TestCase
{
    Q_OBJECT

private slots:
    void readsFactsAndKeepsDefaultsWhereItCannot()
    {
        const auto factsOf = [this](const QByteArray &content) {
            const SceneFacts facts = SceneFacts::of(write(u"facts"_s, content));
            return u"%1 %2"_s.arg(facts.readable).arg(facts.metadata.actorCount);
        };
        QCOMPARE(factsOf(scene("version=\"1.0\" actorcount=\"240\"")), u"1 240"_s);
        QCOMPARE(factsOf(scene("actorcount=\"5\"").chopped(12)), u"0 5"_s);
        QCOMPARE(factsOf("<html/>"), u"0 0"_s);
        const QDateTime modified = SceneFacts::of(write(u"facts"_s, "")).lastModified;
        QVERIFY(std::abs(modified.secsTo(QDateTime::currentDateTime())) < 60);
    }

    void handsOverInOrderInItsOwnThread()
    {
        const QList<SceneFile> files = writeMany(u"ordered"_s, 20);
        SceneReader reader;
        QStringList names;
        connect(&reader, &SceneReader::sceneRead, &reader, [&](const SceneFacts &facts) {
            QCOMPARE(QThread::currentThread(), thread());
            names << facts.file.name;
        });
        QSignalSpy finished(&reader, &SceneReader::finished);
        reader.read({}); // an empty list ends too
        QTRY_COMPARE(finished.count(), 1);
        reader.read(files);
        reader.readAlso(files.first());
        QVERIFY(reader.isReading());
        QTRY_COMPARE(finished.count(), 2);
        QVERIFY(!reader.isReading());
        QCOMPARE(names.size(), 21);
        names.removeAll(files.first().name);
        QVERIFY(std::is_sorted(names.cbegin(), names.cend()));
    }

    void nothingOfAnAbandonedListArrives()
    {
        const QList<SceneFile> first = writeMany(u"first"_s, 50);
        const QList<SceneFile> second = writeMany(u"second"_s, 5);
        SceneReader reader;
        QStringList names;
        connect(&reader, &SceneReader::sceneRead, &reader, [&](const SceneFacts &facts) { names << facts.file.name; });
        QSignalSpy finished(&reader, &SceneReader::finished);
        reader.read(first);
        // Some results are already on their way.
        QThreadPool::globalInstance()->waitForDone();
        reader.read(second);
        QTRY_COMPARE(finished.count(), 1);
        QCOMPARE(names.size(), 5);
        QVERIFY(names.first().startsWith(u"second"_s));
    }

    void otherEventsComeBetween()
    {
        SceneReader reader;
        int handedOver = 0;
        connect(&reader, &SceneReader::sceneRead, &reader, [&] {
            ++handedOver;
            QTest::qSleep(3);
        });
        reader.read(writeMany(u"many"_s, 30));
        QThreadPool::globalInstance()->waitForDone();
        while (handedOver == 0)
            QCoreApplication::processEvents();
        QVERIFY2(handedOver < 10, qPrintable(QString::number(handedOver)));
        connect(&reader, &SceneReader::sceneRead, &reader, [&] { reader.read({}); });
        QTRY_VERIFY(!reader.isReading());
        QVERIFY(handedOver < 10);
    }

    void canBeDeletedWhileReading()
    {
        const QList<SceneFile> files = writeMany(u"deleted"_s, 50);
        for (int i = 0; i < 20; ++i) {
            SceneReader reader;
            reader.read(files);
            QCoreApplication::processEvents();
        }
        QThreadPool::globalInstance()->waitForDone();
        QCoreApplication::processEvents();
    }

private:
    static QByteArray scene(const QByteArray &attributes)
    {
        return "<VelmoSerializer>\n<scenemetadata " + attributes + "/>\n</VelmoSerializer>\n";
    }

    SceneFile write(const QString &name, const QByteArray &content) const
    {
        const SceneFile scene{name, QDir(m_folder.path()).filePath(name + SceneFile::ending())};
        Files::write(scene.path, content);
        return scene;
    }
    QList<SceneFile> writeMany(const QString &prefix, int count) const
    {
        QList<SceneFile> files;
        for (int i = 0; i < count; ++i)
            files << write(u"%1 %2"_s.arg(prefix).arg(i, 3, 10, QChar(u'0')), scene("actorcount=\"1\""));
        return files;
    }

    QTemporaryDir m_folder;
};

VELMO_TEST_MAIN(SceneReaderTest)
#include "SceneReaderTest.moc"
