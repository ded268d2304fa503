#include "gallery/SlidersPage.h"

#include "gallery/FrozenHover.h"
#include "look/Palette.h"
#include "oVIXDoubleSliderWidget.h"
#include "oVIXSliderBar.h"

#include <QVBoxLayout>

#include <functional>

using namespace Qt::StringLiterals;

namespace {

constexpr int sampleWidth = 340;

using Slider = oVIXSliderWidget;
using Setup = std::function<void(Slider *)>;

Slider *createSlider(Slider::SLIDERMODE mode, const QString &prefix, const Setup &setUp = {}, int width = sampleWidth)
{
    auto *slider = new Slider;
    slider->changeMode(mode);
    slider->setPrefix(prefix);
    slider->setLimitsAndValuesMin(0, 100, 25, 1);
    slider->setLimitsAndValues(0, 100, 60, 1);
    if (setUp)
        setUp(slider);
    slider->setFixedWidth(width);
    return slider;
}

/// The slider on the ground that panels have.
QWidget *onPanel(QWidget *slider)
{
    return createPlate(slider, Palette::window, 8);
}

void hoverBar(Slider *slider)
{
    freezeHover(slider->findChild<oVIXSliderBar *>());
}

void setRange(Slider *slider, double minimum, double maximum)
{
    slider->setValue(maximum);
    slider->setValueMin(minimum);
}

} // namespace

SlidersPage::SlidersPage(QWidget *parent) : GalleryPage(tr("Sliders"), parent)
{
    addModes();
    addStates();
    addRanges();
    addLateralColours();
    addPanel();
    // Not the first number box: its cursor would be in the pictures.
    setFocusPolicy(Qt::ClickFocus);
    setFocus();
}

void SlidersPage::addModes()
{
    SampleSection *section = addSection(tr("Modes"), tr("Drag the bar, type, press the arrows, or turn the wheel."));
    section->addRow({
        {onPanel(createSlider(Slider::SingleInteger, tr("Actors"))), tr("single integer")},
        {onPanel(createSlider(Slider::IntegerRange, tr("Age"))), tr("integer range")},
        {onPanel(createSlider(Slider::Lateral, tr("Seed"))), tr("lateral")},
    });
    section->addRow({
        {onPanel(createSlider(Slider::SingleDouble, tr("Spacing"), [](Slider *slider) { slider->setSuffix(u" m"_s); })),
         tr("single double")},
        {onPanel(createSlider(Slider::DoubleRange, tr("Speed"))), tr("double range")},
        {onPanel(createSlider(Slider::LateralPlain, QString())), tr("lateral, without a prefix")},
    });
}

void SlidersPage::addStates()
{
    const auto disable = [](Slider *slider) { slider->setEnabled(false); };
    const auto passLimit = [](Slider *slider) {
        slider->setSpinBoxMaximum(500);
        slider->setValue(240);
    };
    SampleSection *section =
        addSection(tr("States"), tr("The bar ends at the soft limit, the number box at the hard one."));
    section->addRow({
        {onPanel(createSlider(Slider::SingleInteger, tr("Actors"), hoverBar)), tr("under the pointer")},
        {onPanel(createSlider(Slider::SingleInteger, tr("Actors"), disable)), tr("disabled")},
        {onPanel(createSlider(Slider::SingleInteger, tr("Actors"), passLimit)), tr("soft limit passed")},
    });
    section->addRow({
        {onPanel(createSlider(Slider::DoubleRange, tr("Speed"), hoverBar)), tr("range under the pointer")},
        {onPanel(createSlider(Slider::DoubleRange, tr("Speed"), disable)), tr("range, disabled")},
        {onPanel(createSlider(Slider::Lateral, tr("Seed"), disable)), tr("lateral, disabled")},
    });
}

void SlidersPage::addRanges()
{
    const auto range = [](double minimum, double maximum, bool hovered) {
        return onPanel(createSlider(Slider::IntegerRange, tr("Age"), [=](Slider *slider) {
            setRange(slider, minimum, maximum);
            if (hovered)
                hoverBar(slider);
        }));
    };
    SampleSection *section = addSection(tr("Both handles together"), tr("The row below shows them under the pointer."));
    for (const bool hovered : {false, true}) {
        section->addRow({
            {range(0, 0, hovered), tr("at the bottom")},
            {range(50, 50, hovered), tr("in the middle")},
            {range(100, 100, hovered), tr("at the top")},
        });
    }
}

void SlidersPage::addLateralColours()
{
    const auto coloured = [](const QString &colour) {
        return onPanel(createSlider(
            Slider::Lateral, tr("Share"),
            [&](Slider *slider) {
                slider->setColorNoSliderMode(colour);
                slider->setSuffix(u" %"_s);
            },
            160));
    };
    addSection(tr("Lateral colours"))
        ->addRow({
            {coloured(u"rgb(219,219,219)"_s), tr("text")},
            {coloured(u"rgb(116, 211, 252)"_s), tr("accent")},
            {coloured(u"rgb(249, 199, 26)"_s), tr("warning")},
            {onPanel(createSlider(Slider::Lateral, {}, {}, 90)), tr("90 pixels wide")},
        });
}

void SlidersPage::addPanel()
{
    auto *panel = new QWidget;
    auto *layout = new QVBoxLayout(panel);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(4);
    layout->addWidget(createSlider(Slider::SingleInteger, tr("Actors")));
    layout->addWidget(createSlider(Slider::DoubleRange, tr("Speed")));
    layout->addWidget(createSlider(Slider::SingleDouble, tr("Spacing")));
    layout->addWidget(createSlider(Slider::Lateral, tr("Seed")));

    auto *bars = new QWidget;
    auto *barLayout = new QVBoxLayout(bars);
    barLayout->setContentsMargins(0, 0, 0, 0);
    barLayout->setSpacing(8);
    for (const bool hovered : {false, true}) {
        auto *bar = new oVIXSliderBar;
        bar->setFixedSize(sampleWidth, 16);
        bar->setRoundedLeft(true);
        bar->setRoundedRight(true);
        bar->posMarkers(0.2F, 0.7F);
        connect(bar, &oVIXSliderBar::valueChanged, bar, [bar](double ratio) { bar->posMarkers(-1.0F, float(ratio)); });
        if (hovered)
            freezeHover(bar);
        barLayout->addWidget(bar);
    }
    addSection(tr("Together, and the bar alone"))
        ->addRow({
            {onPanel(panel), tr("rows of a panel")},
            {onPanel(bars), tr("bars, the lower one under the pointer")},
        });
}
