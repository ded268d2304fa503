// What a picture from the icon cache costs: found, and made for the first time.

#include "Limited.h"
#include "foundation/OvixSvgKey.h"
#include "foundation/OvixSvgRenderer.h"

#include <benchmark/benchmark.h>

#include <QHash>
#include <QIcon>
#include <QPainter>
#include <QPixmap>
#include <QPixmapCache>
#include <QSvgRenderer>

using namespace Qt::StringLiterals;

namespace {

constexpr int iconSide = 24;

OvixSvgKey iconKey(int number)
{
    OvixSvgKey key;
    key.size = QSize(iconSide, iconSide);
    key.margins = QMargins(number % 7, 0, 0, 0);
    key.opacity = 1.0 / (1 + number);
    key.layers = {{u":/Windows/Close"_s, {}, {}}};
    return key;
}

QList<OvixSvgKey> filledCache(int entries)
{
    QList<OvixSvgKey> keys;
    for (int i = 0; i < entries; ++i) {
        keys << iconKey(i);
        OvixSvgRenderer::get(keys.last());
    }
    return keys;
}

void hit(benchmark::State &state)
{
    const QList<OvixSvgKey> keys = filledCache(int(state.range(0)));
    qsizetype next = 0;
    for (auto _ : state) {
        QPixmap pixmap = OvixSvgRenderer::get(keys[next]);
        benchmark::DoNotOptimize(pixmap);
        if (++next == keys.size())
            next = 0;
    }
}

void hitInPixmapCache(benchmark::State &state)
{
    QPixmapCache::setCacheLimit(64 * 1024);
    QStringList names;
    for (int i = 0; i < state.range(0); ++i) {
        names << u"icon of the benchmark %1"_s.arg(i);
        QPixmap pixmap(iconSide, iconSide);
        pixmap.fill(Qt::white);
        QPixmapCache::insert(names.last(), pixmap);
    }
    qsizetype next = 0;
    for (auto _ : state) {
        QPixmap pixmap;
        const bool found = QPixmapCache::find(names[next], &pixmap);
        benchmark::DoNotOptimize(found);
        benchmark::DoNotOptimize(pixmap);
        if (++next == names.size())
            next = 0;
    }
}

void hitInKeptIcon(benchmark::State &state)
{
    filledCache(int(state.range(0)));
    const QIcon icon(u":/Windows/Close"_s);
    for (auto _ : state) {
        QPixmap pixmap = icon.pixmap(iconSide, iconSide);
        benchmark::DoNotOptimize(pixmap);
    }
}

void miss(benchmark::State &state)
{
    static int number = 1'000'000;
    for (auto _ : state) {
        QPixmap pixmap = OvixSvgRenderer::get(iconKey(++number));
        benchmark::DoNotOptimize(pixmap);
    }
}

void missByHand(benchmark::State &state)
{
    static int number = 1'000'000;
    static QHash<int, QPixmap> kept;
    QSvgRenderer renderer(u":/Windows/Close"_s);
    for (auto _ : state) {
        const OvixSvgKey key = iconKey(++number);
        QImage image(2 * iconSide, 2 * iconSide, QImage::Format_RGBA8888);
        image.fill(Qt::transparent);
        {
            QPainter painter(&image);
            painter.setRenderHint(QPainter::Antialiasing);
            painter.setCompositionMode(QPainter::CompositionMode_Plus);
            painter.setOpacity(key.opacity);
            const int left = 2 * key.margins.left();
            renderer.render(&painter, QRectF(left, 0, 2 * iconSide - left, 2 * iconSide));
        }
        image = image.scaled(iconSide, iconSide, Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
        QPixmap pixmap = QPixmap::fromImage(image);
        pixmap.setDevicePixelRatio(1.0);
        kept.insert(number, pixmap);
        benchmark::DoNotOptimize(pixmap);
    }
}

} // namespace

BENCHMARK(limited<hit, 100>)->Name("icon_hit_vs_pixmap_cache/ours")->Arg(1)->Arg(200)->Arg(2000);
BENCHMARK(hitInPixmapCache)->Name("icon_hit_vs_pixmap_cache/plain")->Arg(1)->Arg(200)->Arg(2000);
BENCHMARK(limited<hit, 30>)->Name("icon_hit_vs_kept_icon/ours")->Arg(200);
BENCHMARK(hitInKeptIcon)->Name("icon_hit_vs_kept_icon/plain")->Arg(200);
BENCHMARK(limited<miss, 110>)->Name("icon_miss/ours")->Iterations(2000);
BENCHMARK(missByHand)->Name("icon_miss/plain")->Iterations(2000);
