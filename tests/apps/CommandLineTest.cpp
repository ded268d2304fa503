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
    void choosesTheTask()
    {
        const QList<std::pair<QString, Task>> lines = {
            {u"-platform offscreen -style fusion town"_s, Task::StartScreen},
            {u"--gallery"_s, Task::Gallery},
            {u"--gallery icons --shots out"_s, Task::Shots},
            {u"--shots out -h"_s, Task::Help},
            {u"--galery"_s, Task::Refuse},
            {u"--shots="_s, Task::Refuse},
            {u"town city"_s, Task::Refuse},
            {u"--shots out --scale big"_s, Task::Refuse},
            {u"--shots out --scale 0"_s, Task::Refuse},
        };
        for (const auto &[arguments, task] : lines) {
            QVERIFY2(parse(arguments).task == task, qPrintable(arguments));
            QCOMPARE(parse(arguments).message.isEmpty(), task != Task::Refuse && task != Task::Help);
        }
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
