// What the sample application's users wait for: from starting the process until the start screen is painted.

#include "Limited.h"
#include "scenes/ProjectFolder.h"
#include "scenes/SceneReader.h"
#include "scenes/ShippedProjects.h"

#include <QCoreApplication>
#include <QDir>
#include <QGuiApplication>
#include <QProcess>

using namespace Qt::StringLiterals;

namespace {

constexpr int longestStart = 60 * 1000; // milliseconds

/// Starts a program beside this one and waits until it has painted its window; its end is not measured.
void startOnce(benchmark::State &state, const QString &name)
{
    QProcess process;
    process.setProcessChannelMode(QProcess::ForwardedErrorChannel);
    process.start(QDir(QCoreApplication::applicationDirPath()).filePath(name),
                  {u"-platform"_s, QGuiApplication::platformName()});
    const bool painted = process.waitForReadyRead(longestStart);
    state.PauseTiming();
    if (!painted || !process.waitForFinished(longestStart) || process.exitCode() != 0)
        state.SkipWithError("The program has not shown its window.");
    state.ResumeTiming();
}

void workstation(benchmark::State &state)
{
    for (auto _ : state)
        startOnce(state, u"WorkstationStart"_s);
}

/// An empty window, and what the start screen reads.
void emptyAndReading(benchmark::State &state)
{
    for (auto _ : state) {
        startOnce(state, u"EmptyStart"_s);
        const QList<ProjectFolder> projects = ProjectFolder::projectsIn(ShippedProjects::folder());
        for (const SceneFile &scene : projects.first().scenes())
            benchmark::DoNotOptimize(SceneFacts::of(scene));
    }
}

} // namespace

BENCHMARK(limited<workstation, 500>)
    ->Name("application_start/ours")
    ->Iterations(3)
    ->Unit(benchmark::kMillisecond)
    ->UseRealTime(); // another process is at work
BENCHMARK(emptyAndReading)
    ->Name("application_start/plain")
    ->Iterations(3)
    ->Unit(benchmark::kMillisecond)
    ->UseRealTime();
