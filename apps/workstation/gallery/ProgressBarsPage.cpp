#include "gallery/ProgressBarsPage.h"

#include "look/Palette.h"
#include "oVIXFloatingProgressBar.h"
#include "oVIXProgressBar.h"

#include <QLabel>

using namespace Qt::StringLiterals;

namespace {

constexpr QSize barSize(320, 8);
constexpr QSize panelSize(330, 96);

struct Bands
{
    int cropStart = 0;
    int cropEnd = 0;
    int play = 0;
};

Sample createBar(int percent, const Bands &bands, const QString &caption)
{
    auto *bar = new oVIXProgressBar(nullptr);
    bar->setFixedSize(barSize);
    bar->setValue(percent);
    bar->setBands(bands.cropStart, bands.cropEnd, bands.play);
    return {bar, caption};
}

Sample createPanel(int percent)
{
    auto *panel = new QWidget;
    panel->setObjectName(u"work"_s);
    panel->setStyleSheet(u"#work { background-color:rgb(39,39,39); }"_s);
    panel->setAttribute(Qt::WA_StyledBackground);
    panel->setFixedSize(panelSize);
    auto *strip = new oVIXFloatingProgressBar(panel);
    strip->setPercent(percent);
    return {panel, ProgressBarsPage::tr("%1 percent").arg(percent)};
}

} // namespace

ProgressBarsPage::ProgressBarsPage(QWidget *parent) : GalleryPage(tr("Progress bars"), parent)
{
    addBars();
    addFloatingBars();
}

void ProgressBarsPage::addBars()
{
    SampleSection *section = addSection(tr("Bars with bands"),
                                        tr("Track, what is done, the crop in it, what has been "
                                           "played of the crop. A click picks a value."));
    section->addRow({
        createBar(0, {}, tr("0 percent")),
        createBar(40, {}, tr("40 percent")),
        createBar(100, {}, tr("100 percent")),
    });
    section->addRow({
        createBar(40, {10, 60, 20}, tr("40 percent done, crop 10 to 60, played to 20")),
        createBar(40, {10, 60, 50}, tr("played to 50: no further than done")),
        createBar(100, {20, 80, 50}, tr("all done, crop 20 to 80, played to 50")),
    });
}

void ProgressBarsPage::addFloatingBars()
{
    addSection(tr("Strips along the bottom of a panel"), tr("A stub shows at 0 percent already."))
        ->addRow({createPanel(0), createPanel(40), createPanel(100)});
}
