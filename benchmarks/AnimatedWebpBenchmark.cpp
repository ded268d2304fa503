// What playing an animated file costs beside a bare loop over the image reader: the round that decodes, and the rounds
// after it, which only pass on what is kept.

#include "Limited.h"
#include "foundation/QAnimatedWebp.h"

#include <benchmark/benchmark.h>

#include <QImageReader>

using namespace Qt::StringLiterals;

namespace {

const QString animation = u":/Animation/Crowd.webp"_s;
constexpr int frames = 60;

/// Every frame of the animation once, as fast as can be.
bool playRound(QAnimatedWebp &player)
{
    QImage image;
    for (int i = 0; i < frames; ++i) {
        QMetaObject::invokeMethod(&player, "frameTimerTriggered");
        player.getCurrentImage(&image);
        if (image.isNull())
            return false;
    }
    return true;
}

void playFirstRound(benchmark::State &state)
{
    for (auto _ : state) {
        QAnimatedWebp player;
        player.setFileName(animation);
        player.start();
        if (!playRound(player))
            return state.SkipWithError("the animation cannot be read");
    }
}

void playLaterRound(benchmark::State &state)
{
    QAnimatedWebp player;
    player.setFileName(animation);
    player.start();
    playRound(player);
    for (auto _ : state) {
        if (!playRound(player))
            return state.SkipWithError("the animation cannot be read");
    }
}

void readAll(benchmark::State &state)
{
    for (auto _ : state) {
        QImageReader reader(animation);
        QList<QImage> images;
        while (reader.canRead())
            images << reader.read();
        if (images.size() != frames)
            return state.SkipWithError("the animation cannot be read");
    }
}

} // namespace

BENCHMARK(limited<playFirstRound, 105>)->Name("animation_first_round/ours")->Unit(benchmark::kMillisecond);
BENCHMARK(readAll)->Name("animation_first_round/plain")->Unit(benchmark::kMillisecond);
BENCHMARK(limited<playLaterRound, 1>)->Name("animation_later_round/ours")->Unit(benchmark::kMillisecond);
BENCHMARK(readAll)->Name("animation_later_round/plain")->Unit(benchmark::kMillisecond);
