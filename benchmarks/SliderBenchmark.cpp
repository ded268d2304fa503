// What a slider costs: a step of a drag on the bar alone and in a panel, and a panel full of them until it is on
// screen.

#include "ApplicationSheet.h"
#include "Limited.h"
#include "values/oVIXSliderBar.h"
#include "values/oVIXSliderWidget.h"

#include <benchmark/benchmark.h>

#include <QDoubleSpinBox>
#include <QLabel>
#include <QMouseEvent>
#include <QSlider>
#include <QTest>
#include <QVBoxLayout>

#include <array>
#include <memory>

using namespace Qt::StringLiterals;

namespace {

constexpr QSize barSize(200, 16);
constexpr int panelRows = 20;
constexpr int manyRows = 100;
constexpr int panelWidth = 320;

void show(QWidget &window)
{
    window.show();
    if (!QTest::qWaitForWindowExposed(&window))
        qFatal("The window does not come up.");
    QCoreApplication::processEvents();
}

/// Until nothing is left to paint: a sheet that is set in a paint is on screen only some turns of the event loop later.
void settle()
{
    for (int turn = 0; turn < 4; ++turn)
        QCoreApplication::processEvents();
}

template <class Label> std::unique_ptr<Label> createBar(QWidget &window)
{
    auto bar = std::make_unique<Label>(&window);
    bar->setFixedSize(barSize);
    bar->setAlignment(Qt::AlignCenter);
    bar->setText(u"Spacing"_s);
    window.resize(barSize);
    return bar;
}

/// The sheets of a bar filled up to these places.
template <size_t Count> std::array<QString, Count> sheetsOfBar(const std::array<float, Count> &places)
{
    QWidget window;
    const auto bar = createBar<oVIXSliderBar>(window);
    show(window);
    std::array<QString, Count> sheets;
    for (size_t i = 0; i < Count; ++i) {
        bar->posMarkers(-1, places[i]);
        settle();
        sheets[i] = bar->styleSheet();
    }
    return sheets;
}

constexpr std::array<float, 2> twoPixels{0.5F, 0.6F};

void stepToNewPixel(benchmark::State &state)
{
    QWidget window;
    const auto bar = createBar<oVIXSliderBar>(window);
    show(window);
    size_t place = 0;
    for (auto _ : state) {
        place = 1 - place;
        bar->posMarkers(-1, twoPixels[place]);
        settle();
    }
}

/// Gets each sheet in its paint, as a bar does.
class SheetInPaintLabel : public QLabel
{
public:
    using QLabel::QLabel;

    QString wanted;

protected:
    void paintEvent(QPaintEvent *event) override
    {
        if (styleSheet() != wanted)
            setStyleSheet(wanted);
        QLabel::paintEvent(event);
    }
};

void newSheetInPaint(benchmark::State &state)
{
    const std::array<QString, 2> sheets = sheetsOfBar(twoPixels);
    QWidget window;
    const auto label = createBar<SheetInPaintLabel>(window);
    show(window);
    size_t place = 0;
    for (auto _ : state) {
        place = 1 - place;
        label->wanted = sheets[place];
        label->update();
        settle();
    }
}

void stepInsidePixel(benchmark::State &state)
{
    QWidget window;
    const auto bar = createBar<oVIXSliderBar>(window);
    show(window);
    float place = 0.5F;
    for (auto _ : state) {
        place = 1.0005F - place;
        bar->posMarkers(-1, place);
        bar->repaint();
    }
}

void repaintLabel(benchmark::State &state)
{
    QWidget window;
    const auto label = createBar<QLabel>(window);
    label->setStyleSheet(sheetsOfBar(std::array<float, 1>{0.5F})[0]);
    show(window);
    for (auto _ : state)
        label->repaint();
}

void sendDrag(QWidget *target, QEvent::Type type, int x)
{
    const QPointF place(x, target->height() / 2);
    const Qt::MouseButton button = type == QEvent::MouseMove ? Qt::NoButton : Qt::LeftButton;
    QMouseEvent event(type, place, target->mapToGlobal(place), button, Qt::LeftButton, {});
    QCoreApplication::sendEvent(target, &event);
}

/// Drags between two places of @p target and paints after every step.
void measureDrag(benchmark::State &state, QWidget *target)
{
    const std::array<int, 2> places{target->width() / 3, target->width() / 2};
    sendDrag(target, QEvent::MouseButtonPress, places[0]);
    size_t place = 0;
    for (auto _ : state) {
        place = 1 - place;
        sendDrag(target, QEvent::MouseMove, places[place]);
        settle();
    }
    sendDrag(target, QEvent::MouseButtonRelease, places[0]);
}

void dragInPanel(benchmark::State &state)
{
    const ApplicationSheet sheet;
    QWidget panel;
    auto *layout = new QVBoxLayout(&panel);
    for (int row = 0; row < panelRows; ++row) {
        auto *slider = new oVIXSliderWidget;
        slider->changeMode(oVIXSliderWidget::SingleDouble);
        slider->setLimitsAndValues(0, 100, 50, 1);
        slider->setPrefix(u"Spacing"_s);
        layout->addWidget(slider);
    }
    panel.setFixedWidth(panelWidth);
    show(panel);
    measureDrag(state, panel.findChild<oVIXSliderBar *>());
}

void dragPlainInPanel(benchmark::State &state)
{
    const ApplicationSheet sheet;
    QWidget panel;
    auto *layout = new QVBoxLayout(&panel);
    for (int row = 0; row < panelRows; ++row) {
        auto *line = new QHBoxLayout;
        auto *slider = new QSlider(Qt::Horizontal);
        auto *box = new QDoubleSpinBox;
        slider->setRange(0, 1000);
        slider->setValue(330);
        slider->setFixedHeight(20);
        box->setFixedSize(61, 20);
        QObject::connect(slider, &QSlider::valueChanged, box, [box](int value) { box->setValue(value / 10.0); });
        line->addWidget(slider);
        line->addWidget(box);
        layout->addLayout(line);
    }
    panel.setFixedWidth(panelWidth);
    show(panel);
    measureDrag(state, panel.findChild<QSlider *>());
}

template <QWidget *(*CreateRow)()> void untilFirstPaint(benchmark::State &state)
{
    const ApplicationSheet sheet;
    for (auto _ : state) {
        auto panel = std::make_unique<QWidget>();
        auto *layout = new QVBoxLayout(panel.get());
        layout->setContentsMargins(0, 0, 0, 0);
        layout->setSpacing(0);
        for (int row = 0; row < manyRows; ++row)
            layout->addWidget(CreateRow());
        panel->setFixedWidth(panelWidth);
        show(*panel);
        settle();
        state.PauseTiming();
        panel.reset();
        state.ResumeTiming();
    }
}

QWidget *createSlider()
{
    auto *slider = new oVIXSliderWidget;
    slider->setLimitsAndValues(0, 100, 50, 1);
    slider->setPrefix(u"Spacing"_s);
    return slider;
}

/// As many boxes and labels as a slider widget has.
QWidget *createPlainRow()
{
    auto *row = new QWidget;
    auto *layout = new QHBoxLayout(row);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(0);
    for (int i = 0; i < 3; ++i)
        layout->addWidget(new QDoubleSpinBox);
    for (int i = 0; i < 2; ++i)
        layout->addWidget(new QSpinBox);
    for (int i = 0; i < 11; ++i)
        layout->addWidget(new QLabel(u"Spacing"_s));
    row->setFixedHeight(20);
    return row;
}

} // namespace

BENCHMARK(limited<stepToNewPixel, 140>)->Name("slider_bar_new_pixel/ours");
BENCHMARK(newSheetInPaint)->Name("slider_bar_new_pixel/plain");
BENCHMARK(limited<stepInsidePixel, 180>)->Name("slider_bar_same_pixel/ours");
BENCHMARK(repaintLabel)->Name("slider_bar_same_pixel/plain");
BENCHMARK(limited<dragInPanel, 600>)->Name("slider_panel_drag/ours");
BENCHMARK(dragPlainInPanel)->Name("slider_panel_drag/plain");
BENCHMARK(limited<untilFirstPaint<createSlider>, 260>)->Name("slider_widgets_100/ours")->Unit(benchmark::kMillisecond);
BENCHMARK(untilFirstPaint<createPlainRow>)->Name("slider_widgets_100/plain")->Unit(benchmark::kMillisecond);
