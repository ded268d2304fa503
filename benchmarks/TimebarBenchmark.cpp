// What playback costs: the timebar shows another one of 100,000 frames, beside a plain progress bar of its bar's size.

#include "Limited.h"
#include "values/OvixMovableLabel.h"
#include "values/oVIXTimebarWidget.h"

#include <benchmark/benchmark.h>

#include <QCoreApplication>
#include <QGraphicsOpacityEffect>
#include <QProgressBar>
#include <QTest>

namespace {

constexpr int frames = 100000;
constexpr QSize timebarSize(900, 40);
constexpr QSize barSize(820, 8);
/// Frames that lie so far apart that the marker moves and changes its text each time.
constexpr int pixelStep = 127;

void show(QWidget &window)
{
    window.show();
    if (!QTest::qWaitForWindowExposed(&window))
        qFatal("The window does not come up.");
    QCoreApplication::processEvents();
}

template <int Step, class Show> void play(benchmark::State &state, Show showFrame)
{
    int frame = 0;
    for (auto _ : state) {
        frame = (frame + Step) % frames;
        showFrame(frame);
        QCoreApplication::processEvents();
    }
}

template <int Step> void playInTimebar(benchmark::State &state)
{
    QWidget window;
    oVIXTimebarWidget timebar(&window);
    window.resize(timebarSize);
    timebar.resize(timebarSize);
    timebar.setMaxValue(frames);
    timebar.updateCachedValue(frames);
    timebar.setCropValues(0, frames);
    show(window);
    const QList<OvixMovableLabel *> markers = timebar.findChildren<OvixMovableLabel *>();
    for (const OvixMovableLabel *marker : markers)
        static_cast<QGraphicsOpacityEffect *>(marker->graphicsEffect())->setOpacity(1.0);
    QCoreApplication::processEvents();
    play<Step>(state, [&timebar](int frame) { timebar.setPlayWidgetFrame(frame); });
}

template <int Step> void playInPlainBar(benchmark::State &state)
{
    QWidget window;
    QProgressBar bar(&window);
    window.resize(timebarSize);
    bar.resize(barSize);
    bar.setTextVisible(false);
    bar.setMaximum(frames);
    show(window);
    play<Step>(state, [&bar](int frame) {
        bar.setValue(frame);
        bar.repaint();
    });
}

} // namespace

BENCHMARK(limited<playInTimebar<1>, 50>)->Name("timebar_playback/ours");
BENCHMARK(playInPlainBar<1>)->Name("timebar_playback/plain");
BENCHMARK(limited<playInTimebar<pixelStep>, 100>)->Name("timebar_playback_fast/ours");
BENCHMARK(playInPlainBar<pixelStep>)->Name("timebar_playback_fast/plain");
