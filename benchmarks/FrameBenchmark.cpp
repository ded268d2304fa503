// What the window frame costs while nothing seems to happen: the wait overlay's tick, and the main window's look at
// every event of the application.

#include "Limited.h"
#include "foundation/OvixSvgKey.h"
#include "foundation/OvixSvgRenderer.h"
#include "frame/oVIXMainWindow.h"
#include "frame/oVIXWindowWait.h"

#include <benchmark/benchmark.h>

#include <QCoreApplication>
#include <QElapsedTimer>
#include <QLabel>
#include <QPaintEvent>
#include <QTest>
#include <QThread>

using namespace Qt::StringLiterals;

namespace {

constexpr QSize windowSize(1920, 1080);
constexpr int labelCount = 300;
constexpr int labelsInRow = 20;
constexpr int frameMsecs = 334; // a picture of the mark shows for a third of a second

/// A window full of labels under a wait overlay that shows text and percent.
struct BusyWindow
{
    BusyWindow()
    {
        const QSize cell(windowSize.width() / labelsInRow, windowSize.height() * labelsInRow / labelCount);
        for (int i = 0; i < labelCount; ++i) {
            auto *label = new QLabel(u"Label %1"_s.arg(i), &window);
            label->setStyleSheet(u"QLabel {background:rgb(50,50,50);color:rgb(200,200,200);border-radius:3px;}"_s);
            label->setGeometry(QRect(QPoint(i % labelsInRow * cell.width(), i / labelsInRow * cell.height()), cell));
        }
        overlay = new oVIXWindowWait(&window);
        overlay->hide();
        window.resize(windowSize);
        window.show();
        if (!QTest::qWaitForWindowExposed(&window))
            qFatal("The window does not come up.");
        overlay->setText(u"Baking"_s);
        overlay->setTextVisible(true);
        overlay->setPercentVisible(true);
        overlay->startWait();
        settle();
        for (int frame = 0; frame < oVIXWindowWait::MovieFrames; ++frame) { // rendered once in a process
            OvixSvgKey key;
            key.devicePixelRatio = window.devicePixelRatio();
            key.size = QSize(128, 128);
            key.layers = {{u":/Windows/Wait"_s, {}, {u"wait%1"_s.arg(frame)}}};
            OvixSvgRenderer::get(key);
        }
    }

    /// What has been asked for is on screen some turns of the event loop later.
    static void settle()
    {
        for (int turn = 0; turn < 4; ++turn)
            QCoreApplication::processEvents();
    }

    QWidget window;
    oVIXWindowWait *overlay;
};

/// Counts paints, so that no tick passes for cheap that has not painted.
class Paints : public QObject
{
public:
    int count = 0;
    bool eventFilter(QObject *, QEvent *event) override
    {
        count += event->type() == QEvent::Paint;
        return false;
    }
};

/// Ticks that all have another picture of the mark to show, after @p prepare, which may make them do more.
template <class Prepare> void tick(benchmark::State &state, Prepare prepare)
{
    BusyWindow busy;
    Paints paints;
    busy.overlay->installEventFilter(&paints);
    int ticks = 0;
    bool idle = false;
    for (auto _ : state) {
        state.PauseTiming();
        QThread::msleep(frameMsecs);
        busy.overlay->repaint(); // a small paint must not pay for caches that went cold
        prepare(*busy.overlay, ++ticks);
        const int paintsBefore = paints.count;
        state.ResumeTiming();
        BusyWindow::settle();
        idle |= paints.count == paintsBefore;
    }
    if (idle)
        state.SkipWithError("a tick has not painted");
}

void tickMark(benchmark::State &state)
{
    tick(state, [](oVIXWindowWait &, int) {});
}

void tickAll(benchmark::State &state)
{
    tick(state, [](oVIXWindowWait &overlay, int ticks) {
        overlay.setText(u"Baking actor %1"_s.arg(ticks));
        overlay.setPercent(ticks % 100);
    });
}

void repaintAll(benchmark::State &state)
{
    tick(state, [](oVIXWindowWait &overlay, int) { overlay.update(); });
}

class NoFilter : public QObject
{
public:
    bool eventFilter(QObject *, QEvent *) override { return false; }
};

void sendEvents(benchmark::State &state)
{
    QObject receiver;
    QEvent event(QEvent::User);
    for (auto _ : state)
        QCoreApplication::sendEvent(&receiver, &event);
}

qint64 nanosecondsOfAnEvent()
{
    constexpr int count = 100'000;
    QObject receiver;
    QEvent event(QEvent::User);
    QElapsedTimer timer;
    timer.start();
    for (int i = 0; i < count; ++i)
        QCoreApplication::sendEvent(&receiver, &event);
    return timer.nsecsElapsed() / count;
}

/// The window may cost an event 50 nanoseconds. Builds that are not optimised only show that it runs.
void sendPastMainWindow(benchmark::State &state)
{
    [[maybe_unused]] const qint64 without = nanosecondsOfAnEvent();
    const oVIXMainWindow window;
    [[maybe_unused]] const qint64 with = nanosecondsOfAnEvent();
    sendEvents(state);
#ifdef NDEBUG
    if (with - without > 50)
        state.SkipWithError("the window costs an event more than 50 nanoseconds");
#endif
}

void sendPastNoFilter(benchmark::State &state)
{
    NoFilter filter;
    QCoreApplication::instance()->installEventFilter(&filter);
    sendEvents(state);
}

} // namespace

BENCHMARK(limited<tickMark, 5>)->Name("wait_overlay_tick/ours")->Iterations(3)->Unit(benchmark::kMicrosecond);
BENCHMARK(repaintAll)->Name("wait_overlay_tick/plain")->Iterations(3)->Unit(benchmark::kMicrosecond);
BENCHMARK(limited<tickAll, 5>)->Name("wait_overlay_tick_reported/ours")->Iterations(3)->Unit(benchmark::kMicrosecond);
BENCHMARK(repaintAll)->Name("wait_overlay_tick_reported/plain")->Iterations(3)->Unit(benchmark::kMicrosecond);
// The event without any filter is there for the difference, which is what the window costs every event.
BENCHMARK(sendEvents)->Name("main_window_foreign_event_unfiltered");
BENCHMARK(limited<sendPastMainWindow, 115>)->Name("main_window_foreign_event/ours");
BENCHMARK(sendPastNoFilter)->Name("main_window_foreign_event/plain");
