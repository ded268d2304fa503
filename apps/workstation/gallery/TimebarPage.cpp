#include "gallery/TimebarPage.h"

#include "OvixMovableLabel.h"
#include "gallery/FrozenHover.h"
#include "look/Palette.h"
#include "oVIXTimebarWidget.h"

#include <QGraphicsOpacityEffect>
#include <QLabel>
#include <QVBoxLayout>

using namespace Qt::StringLiterals;

namespace {

constexpr int maximum = 1200;
constexpr QSize markerSize(40, 24);
constexpr QSize waySize(200, 32);

struct Frames
{
    int maximum = ::maximum;
    int cached = ::maximum;
    int play = 0;
    int cropStart = 0;
    int cropEnd = ::maximum;
};

oVIXTimebarWidget *createTimebar(const Frames &frames)
{
    auto *timebar = new oVIXTimebarWidget;
    timebar->setMaxValue(frames.maximum);
    timebar->updateCachedValue(frames.cached);
    timebar->setCropValues(frames.cropStart, frames.cropEnd);
    timebar->setPlayWidgetFrame(frames.play);
    // The gallery takes over at once what the user picks.
    QObject::connect(timebar, &oVIXTimebarWidget::s_valuePicked, timebar, [timebar] {
        timebar->unblock();
        timebar->setPlayWidgetFrame(timebar->getSelectedValue());
    });
    return timebar;
}

oVIXTimebarWidget *withMarkers(oVIXTimebarWidget *timebar)
{
    freezeHover(timebar);
    const QList<OvixMovableLabel *> markers = timebar->findChildren<OvixMovableLabel *>();
    for (const OvixMovableLabel *marker : markers)
        static_cast<QGraphicsOpacityEffect *>(marker->graphicsEffect())->setOpacity(1.0);
    return timebar;
}

QWidget *createNamed(const QString &name, QWidget *widget)
{
    auto *both = new QWidget;
    auto *layout = new QVBoxLayout(both);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(4);
    layout->addWidget(createCaption(name, Qt::AlignLeft));
    layout->addWidget(widget);
    return both;
}

struct Marker
{
    QString picture;
    int textTop = 0;
};

/// A marker on a way of its own.
QWidget *createWay(const Marker &kind, int value)
{
    auto *way = new QWidget;
    way->setFixedSize(waySize);
    auto *marker = new OvixMovableLabel(way);
    QFont font(u"Inter"_s);
    font.setPixelSize(10);
    marker->setGeometry(0, 4, markerSize.width(), markerSize.height());
    marker->setFilename(kind.picture);
    marker->setImageShape(OvixSvgLabel::Stretch);
    marker->setFont(font);
    marker->setVerticalPosSubLabel(kind.textTop);
    marker->setMinMaxPosValue(0, waySize.width() - markerSize.width(), 100);
    marker->setCurrentValue(value);
    return way;
}

} // namespace

TimebarPage::TimebarPage(QWidget *parent) : GalleryPage(tr("Timebar"), parent)
{
    addTimebars();
    addMarkers();
}

void TimebarPage::addTimebars()
{
    SampleSection *resting = addSection(
        tr("Timebar"), tr("Point at one to see its markers; click, drag, or double-click a marker to type."));
    resting->addWide(createNamed(tr("playing, all frames computed"), createTimebar({maximum, maximum, 480})));
    resting->addWide(createNamed(tr("computing"), createTimebar({maximum, 700, 300})));
    resting->addWide(createNamed(tr("with a crop"), createTimebar({maximum, maximum, 480, 240, 900})));
    resting->addWide(createNamed(tr("empty: no frames"), createTimebar({0, 0, 0, 0, 0})));

    SampleSection *pointed = addSection(tr("Markers shown"));
    pointed->addWide(createNamed(tr("with a crop"), withMarkers(createTimebar({maximum, maximum, 480, 240, 900}))));
    oVIXTimebarWidget *computing = createTimebar({maximum, 700, 0});
    computing->setPlayWidgetFrame(800);
    pointed->addWide(createNamed(tr("asked for a frame that is not computed yet"), withMarkers(computing)));
    oVIXTimebarWidget *whole = createTimebar({maximum, maximum, 480});
    whole->showCrops(false);
    pointed->addWide(createNamed(tr("without crop markers"), withMarkers(whole)));
    pointed->addWide(createNamed(tr("100,000 frames"), withMarkers(createTimebar({100000, 100000, 50000, 0, 100000}))));
    oVIXTimebarWidget *disabled = createTimebar({maximum, maximum, 480, 240, 900});
    disabled->setEnabled(false);
    pointed->addWide(createNamed(tr("disabled"), withMarkers(disabled)));
}

void TimebarPage::addMarkers()
{
    const Marker middle = {u":/Timebar/MarkerMiddle"_s, 4};
    const Marker left = {u":/Timebar/MarkerLeft"_s, 6};
    const Marker right = {u":/Timebar/MarkerRight"_s, 6};
    addSection(tr("Markers"), tr("Each slides along its own way, from 0 to 100.")) //
        ->addRow({
            {createPlate(createWay(left, 0), Palette::window, 8), tr("left, 0")},
            {createPlate(createWay(middle, 50), Palette::window, 8), tr("middle, 50")},
            {createPlate(createWay(right, 100), Palette::window, 8), tr("right, 100")},
        });
}
