// What a combo of many items costs beside the toolkit's own: filled, and with an item looked up by its text or value.

#include "Limited.h"
#include "choosers/oVIXCombo.h"

#include <benchmark/benchmark.h>

#include <QComboBox>
#include <QElapsedTimer>

#include <array>

using namespace Qt::StringLiterals;

namespace {

constexpr int itemCount = 10000;

QString textOf(int number)
{
    return u"Motion of the crowd %1"_s.arg(number, 5);
}

QString metaOf(int number)
{
    return u"motions/crowd/%1"_s.arg(number, 5);
}

void fill(oVIXCombo &combo)
{
    for (int i = 0; i < itemCount; ++i)
        combo.addItem(textOf(i), metaOf(i));
}

void fill(QComboBox &combo)
{
    for (int i = 0; i < itemCount; ++i)
        combo.addItem(textOf(i), metaOf(i));
}

template <class Combo> void fillOne(benchmark::State &state)
{
    for (auto _ : state) {
        Combo combo;
        fill(combo);
    }
}

/// The numbers for which looking takes longest: from the far end, or no item's.
constexpr int last = itemCount - 2;
constexpr int missing = itemCount;

/// Two names in turn.
class Far
{
public:
    Far(QString (*name)(int), int first) : m_names{name(first), name(first + 1)} { }
    const QString &next() { return m_names[m_turn ^= 1]; }

private:
    std::array<QString, 2> m_names;
    unsigned m_turn = 0;
};

/// One look may take a millisecond. Builds that are not optimised only show that it runs.
template <class Look> void lookUp(benchmark::State &state, Look look)
{
    oVIXCombo combo;
    fill(combo);
    QElapsedTimer timer;
    timer.start();
    for (auto _ : state)
        look(combo);
#ifdef NDEBUG
    if (timer.nsecsElapsed() > 1'000'000 * qint64(state.iterations()))
        state.SkipWithError("a look takes more than a millisecond");
#endif
}

void lookUpText(benchmark::State &state)
{
    Far texts(textOf, last);
    lookUp(state, [&](oVIXCombo &combo) { combo.setComboText(texts.next(), QString()); });
}

void lookUpMissingText(benchmark::State &state)
{
    Far texts(textOf, missing);
    Far metas(metaOf, missing);
    lookUp(state, [&](oVIXCombo &combo) { combo.setComboText(texts.next(), metas.next()); });
}

template <int First> void lookUpMeta(benchmark::State &state)
{
    Far metas(metaOf, First);
    lookUp(state, [&](oVIXCombo &combo) { combo.setComboMeta(metas.next()); });
}

void lookUpTextPlain(benchmark::State &state)
{
    QComboBox combo;
    fill(combo);
    Far texts(textOf, last);
    for (auto _ : state)
        combo.setCurrentText(texts.next());
}

void lookUpMetaPlain(benchmark::State &state)
{
    QComboBox combo;
    fill(combo);
    Far metas(metaOf, last);
    for (auto _ : state)
        combo.setCurrentIndex(combo.findData(metas.next()));
}

} // namespace

BENCHMARK(limited<fillOne<oVIXCombo>, 120>)->Name("combo_fill_10000/ours")->Unit(benchmark::kMillisecond);
BENCHMARK(fillOne<QComboBox>)->Name("combo_fill_10000/plain")->Unit(benchmark::kMillisecond);
BENCHMARK(limited<lookUpText, 120>)->Name("combo_text_10000/ours")->Unit(benchmark::kMicrosecond);
BENCHMARK(lookUpTextPlain)->Name("combo_text_10000/plain")->Unit(benchmark::kMicrosecond);
BENCHMARK(limited<lookUpMeta<last>, 120>)->Name("combo_meta_10000/ours")->Unit(benchmark::kMicrosecond);
BENCHMARK(lookUpMetaPlain)->Name("combo_meta_10000/plain")->Unit(benchmark::kMicrosecond);
BENCHMARK(lookUpMissingText)->Name("combo_text_missing_10000")->Unit(benchmark::kMicrosecond);
BENCHMARK(lookUpMeta<missing>)->Name("combo_meta_missing_10000")->Unit(benchmark::kMicrosecond);
