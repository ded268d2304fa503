// What an icon label costs on screen: painted again unchanged, and with its picture turned round.

#include "Limited.h"
#include "foundation/OvixSvgKey.h"
#include "foundation/OvixSvgLabel.h"
#include "foundation/OvixSvgRenderer.h"

#include <benchmark/benchmark.h>

#include <QCoreApplication>
#include <QPixmap>
#include <QTest>

using namespace Qt::StringLiterals;

namespace {

constexpr int iconSide = 24;

OvixSvgKey iconKey(bool inverted)
{
    OvixSvgKey key;
    key.size = QSize(iconSide, iconSide);
    key.inverted = inverted;
    key.layers = {{u":/Windows/Close"_s, {}, {}}};
    return key;
}

/// Sets its picture in the paint, whatever that leads to.
class NaiveIconLabel : public QLabel
{
public:
    using QLabel::QLabel;

    bool inverted = false;

protected:
    void paintEvent(QPaintEvent *event) override
    {
        const OvixSvgKey key = iconKey(inverted);
        const size_t hash = qHash(key, 0);
        if (hash != m_lastHash) {
            setPixmap(OvixSvgRenderer::get(key));
            m_lastHash = hash;
        }
        QLabel::paintEvent(event);
    }

private:
    size_t m_lastHash = 0;
};

void show(QWidget &window)
{
    window.resize(iconSide, iconSide);
    window.show();
    if (!QTest::qWaitForWindowExposed(&window))
        qFatal("The window does not come up.");
    QCoreApplication::processEvents();
}

/// Until nothing is left to paint: what a paint asks for is on screen only some turns of the event loop later.
void settle()
{
    for (int turn = 0; turn < 4; ++turn)
        QCoreApplication::processEvents();
}

QString sheetOfLabel()
{
    QWidget window;
    OvixSvgLabel label(&window);
    label.setFilename(u":/Windows/Close"_s);
    label.paintEventUpdate();
    return label.styleSheet();
}

void repaintUnchanged(benchmark::State &state)
{
    QWidget window;
    OvixSvgLabel label(&window);
    label.setFixedSize(iconSide, iconSide);
    label.setFilename(u":/Windows/Close"_s);
    show(window);
    for (auto _ : state)
        label.repaint();
}

void repaintPlainLabel(benchmark::State &state)
{
    QWidget window;
    QLabel label(&window);
    label.setFixedSize(iconSide, iconSide);
    label.setAlignment(Qt::AlignCenter);
    label.setScaledContents(true);
    label.setPixmap(OvixSvgRenderer::get(iconKey(false)));
    label.setStyleSheet(sheetOfLabel());
    show(window);
    for (auto _ : state)
        label.repaint();
}

void flip(benchmark::State &state)
{
    QWidget window;
    OvixSvgLabel label(&window);
    label.setFixedSize(iconSide, iconSide);
    label.setFilename(u":/Windows/Close"_s);
    show(window);
    bool inverted = false;
    for (auto _ : state) {
        inverted = !inverted;
        label.setInverted(inverted);
        settle();
    }
}

void flipNaively(benchmark::State &state)
{
    QWidget window;
    NaiveIconLabel label(&window);
    label.setFixedSize(iconSide, iconSide);
    label.setAlignment(Qt::AlignCenter);
    label.setScaledContents(true);
    label.setStyleSheet(sheetOfLabel());
    show(window);
    for (auto _ : state) {
        label.inverted = !label.inverted;
        label.update();
        settle();
    }
}

} // namespace

BENCHMARK(limited<repaintUnchanged, 105>)->Name("icon_label_repaint/ours");
BENCHMARK(repaintPlainLabel)->Name("icon_label_repaint/plain");
BENCHMARK(limited<flip, 70>)->Name("icon_label_flip/ours");
BENCHMARK(flipNaively)->Name("icon_label_flip/plain");
