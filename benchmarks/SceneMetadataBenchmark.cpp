// Reading a scene's metadata against a bare token loop over the same file.

#include "VelmoSceneMetadataParser.h"

#include <QCoreApplication>
#include <QFile>
#include <QTemporaryDir>
#include <QXmlStreamReader>

#include <benchmark/benchmark.h>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

QByteArray metadata()
{
    return "    <scenemetadata version=\"2.0.0\" time-fps=\"00:02:30 | 25\" bakestatus=\"Baked\" actorcount=\"5\" "
           "vehiclescount=\"2\" background-name=\"North stand\"/>\n";
}

bool writeLargeScene(const QString &path, qint64 size)
{
    QFile file(path);
    if (!file.open(QIODevice::WriteOnly))
        return false;
    file.write("<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n<VelmoSerializer>\n" + metadata() + "    <actors>\n");
    for (int i = 0; file.pos() < size; ++i) {
        const QByteArray number = QByteArray::number(i);
        file.write("        <actor id=\"" + number + "\" name=\"Visitor " + number + "\" type=\"adult\">\n"
                   + "            <position x=\"12.25\" y=\"" + number + ".5\"/>\n"
                   + "            <goal x=\"-48.75\" y=\"3.5\" radius=\"1.5\"/>\n"
                   + "            <tags>visitor, north &amp; west</tags>\n        </actor>\n");
    }
    return file.write("    </actors>\n</VelmoSerializer>\n") > 0;
}

bool writeDeepScene(const QString &path, qsizetype levels)
{
    QFile file(path);
    return file.open(QIODevice::WriteOnly)
        && file.write("<VelmoSerializer>\n" + QByteArray("<g>").repeated(levels) + QByteArray("</g>").repeated(levels)
                      + '\n' + metadata() + "</VelmoSerializer>\n")
        > 0;
}

bool readWithOurs(const QString &path)
{
    VelmoSceneMetadataParser parser = VelmoSceneMetadataParser::withDefaults();
    return parser.read(path).ok && parser.actorCount == "5"_L1;
}

bool readPlainly(const QString &path)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly | QIODevice::Text))
        return false;
    QXmlStreamReader reader(&file);
    while (!reader.atEnd())
        reader.readNext();
    return !reader.hasError();
}

// What Linux tells about this process in KiB, for example "VmRSS"; -1 elsewhere.
qint64 processMemory(QByteArrayView name)
{
    QFile status(u"/proc/self/status"_s);
    if (!status.open(QIODevice::ReadOnly))
        return -1;
    const QList<QByteArray> lines = status.readAll().split('\n');
    for (const QByteArray &line : lines) {
        if (line.startsWith(name))
            return line.mid(name.size() + 1).chopped(2).trimmed().toLongLong();
    }
    return -1;
}

using Read = bool (*)(const QString &path);

// By how much the memory of the process rises at most during one reading, in KiB; -1 where it cannot be told.
qint64 memoryOf(Read read, const QString &path)
{
    read(path);
    QFile references(u"/proc/self/clear_refs"_s);
    if (!references.open(QIODevice::WriteOnly | QIODevice::Unbuffered) || references.write("5") != 1)
        return -1;
    const qint64 before = processMemory("VmRSS");
    read(path);
    return std::max<qint64>(processMemory("VmHWM") - before, 0);
}

void addOne(const std::string &name, Read read, const QString &path, double limit)
{
    const auto kibibytes = double(memoryOf(read, path));
    benchmark::RegisterBenchmark(name.c_str(), [=](benchmark::State &state) {
        for (auto step : state) {
            if (!read(path)) {
                state.SkipWithError("the file could not be read");
                break;
            }
        }
        state.counters["memory_KiB"] = kibibytes;
        state.counters["limit"] = limit;
    })->Unit(benchmark::kMillisecond);
}

// Two readings of one file, of which ours takes at most limit times as long.
void addPair(const std::string &name, const QString &path, double limit)
{
    addOne(name + "/ours", readWithOurs, path, limit);
    addOne(name + "/plain", readPlainly, path, limit);
}

} // namespace

int main(int argc, char **argv)
{
    QCoreApplication application(argc, argv);
    benchmark::Initialize(&argc, argv);

    const QTemporaryDir folder;
    const QString large = folder.filePath(u"large.vscene"_s);
    const QString deep = folder.filePath(u"deep.vscene"_s);
    if (!writeLargeScene(large, 50'000'000) || !writeDeepScene(deep, 1'000'000))
        qFatal("The input cannot be written to %s.", qPrintable(folder.path()));

    addPair("metadata_50MB", large, 1.05);
    addPair("metadata_1M_levels", deep, 1.1);
    benchmark::RunSpecifiedBenchmarks();
    return 0;
}
