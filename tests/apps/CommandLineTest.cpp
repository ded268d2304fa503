#include "support/TestCase.h"

#include "CommandLine.h"

#include <QDir>
#include <QTest>

using namespace Qt::StringLiterals;
using Task = CommandLine::Task;

class CommandLineTest : public TestCase
{
    Q_OBJECT

private slots:
    void choosesTheTask_data()
    {
        QTest::addColumn<QString>("arguments");
        QTest::addColumn<Task>("task");
        QTest::newRow("nothing") << u""_s << Task::StartScreen;
        QTest::newRow("folder") << u"town"_s << Task::StartScreen;
        QTest::newRow("toolkit's options") << u"-platform offscreen -style fusion town"_s << Task::StartScreen;
        QTest::newRow("gallery") << u"--gallery"_s << Task::Gallery;
        QTest::newRow("gallery page") << u"--gallery icons"_s << Task::Gallery;
        QTest::newRow("shots") << u"--shots out town"_s << Task::Shots;
        QTest::newRow("help") << u"--shots out -h"_s << Task::Help;
        QTest::newRow("version") << u"--version"_s << Task::Version;
        QTest::newRow("unknown option") << u"--galery"_s << Task::Refuse;
        QTest::newRow("no value") << u"--shots"_s << Task::Refuse;
        QTest::newRow("empty value") << u"--shots="_s << Task::Refuse;
        QTest::newRow("two folders") << u"town city"_s << Task::Refuse;
        QTest::newRow("shots of the gallery too") << u"--gallery icons --shots out"_s << Task::Shots;
        QTest::newRow("no number") << u"--shots out --scale big"_s << Task::Refuse;
        QTest::newRow("scale out of range") << u"--shots out --scale 0"_s << Task::Refuse;
    }
    void choosesTheTask()
    {
        QFETCH(QString, arguments);
        const CommandLine line = parse(arguments);
        QTEST(line.task, "task");
        QCOMPARE(line.message.isEmpty(), line.task != Task::Refuse && line.task != Task::Help);
    }

    void pathsStartAtTheGivenFolder()
    {
        const CommandLine line = parse(u"--shots out/1 -platform minimal --scale 1.5 ../town"_s);
        QCOMPARE(line.shotsFolder, QDir(here()).absoluteFilePath(u"out/1"_s));
        QCOMPARE(line.projectsFolder, QDir::cleanPath(QDir(here()).absoluteFilePath(u"../town"_s)));
        QCOMPARE(line.shotsScale, 1.5);
        QCOMPARE(line.shotsPlatform, u"minimal"_s);
        QCOMPARE(parse(u"--gallery icons"_s).galleryPage, u"icons"_s);
        QCOMPARE(parse(QString()).projectsFolder, QString());
    }

private:
    static QString here() { return QDir::rootPath() + u"work/here"_s; }
    static CommandLine parse(const QString &arguments)
    {
        return CommandLine::parse(QStringList(u"workstation"_s) + arguments.split(u' ', Qt::SkipEmptyParts), here());
    }
};

VELMO_TEST_MAIN(CommandLineTest)
#include "CommandLineTest.moc"
