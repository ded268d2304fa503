#include "values/oVIXTimebarWidget.h"

#include "foundation/InterFont.h"
#include "foundation/UpdatesHeld.h"
#include "values/MarkerFade.h"
#include "values/SaturatedInt.h"
#include "values/TimebarRules.h"

#include "ui_oVIXTimebarWidget.h"

#include <QCursor>
#include <QEvent>
#include <QTimer>

#include <algorithm>
#include <functional>

using namespace Qt::StringLiterals;

namespace {

constexpr int hideDelayMsecs = 3000;
constexpr int fontPixelSize = 10;
constexpr int currentTextTop = 4;
constexpr int cropTextTop = 6;

void setUpMarker(OvixMovableLabel *marker, const QString &picture, int textTop)
{
    marker->setFilename(picture);
    marker->setImageShape(OvixSvgLabel::Stretch);
    marker->setFont(interFont(fontPixelSize));
    marker->setVerticalPosSubLabel(textTop);
}

bool hasPassed(const OvixMovableLabel *left, const OvixMovableLabel *right)
{
    return left->x() > right->x() + right->width();
}

} // namespace

oVIXTimebarWidget::oVIXTimebarWidget(QWidget *parent)
    : QFrame(parent), m_ui(new Ui::oVIXTimebarWidget), m_hideTimer(new QTimer(this))
{
    m_ui->setupUi(this);
    m_maximum = m_ui->RealBar->maximum();
    m_cropEnd = m_maximum;

    setUpMarker(m_ui->floatingCurrTime, u":/Timebar/MarkerMiddle"_s, currentTextTop);
    setUpMarker(m_ui->floatingLeftCrop, u":/Timebar/MarkerLeft"_s, cropTextTop);
    setUpMarker(m_ui->floatingRightCrop, u":/Timebar/MarkerRight"_s, cropTextTop);
    m_fade = std::make_unique<MarkerFade>(markers(), this);
    updateMinMaxValues();
    m_ui->floatingCurrTime->setCurrentValue(m_playValue);
    m_ui->floatingLeftCrop->setCurrentValue(m_cropStart);
    m_ui->floatingRightCrop->setCurrentValue(m_cropEnd);

    connect(m_ui->RealBar, &oVIXProgressBar::valuePicked, this, &oVIXTimebarWidget::timeSelected);
    connect(m_hideTimer, &QTimer::timeout, this, &oVIXTimebarWidget::hideLabels);
    connectMarkers();
    setMouseTracking(true);
    installEventFilter(this);
    m_ui->floatingArea->installEventFilter(this);
    for (OvixMovableLabel *marker : markers())
        marker->installEventFilter(this);
}

oVIXTimebarWidget::~oVIXTimebarWidget()
{
    m_blocked = true;
    m_hideTimer->deleteLater();
    // An open editor loses the focus, and so announces its end, when the timebar is half gone.
    for (OvixMovableLabel *marker : markers())
        marker->disconnect(this);
}

void oVIXTimebarWidget::setMaxValue(int maximum)
{
    if (maximum < 0)
        return;
    m_maximum = maximum;
    m_playValue = 0;
    m_cachedValue = 0;
    m_ui->RealBar->setMaximum(maximum);
    updateMinMaxValues();
    m_ui->floatingCurrTime->setCurrentValue(0);
    m_ui->floatingLeftCrop->setCurrentValue(0);
    m_ui->floatingRightCrop->setCurrentValue(maximum);
}

int oVIXTimebarWidget::getMax() const
{
    return m_maximum;
}

void oVIXTimebarWidget::updateCachedValue(int frame)
{
    if (qint64(frame) <= qint64(m_maximum) + 1)
        m_cachedValue = frame;
}

int oVIXTimebarWidget::getCached() const
{
    return m_cachedValue;
}

void oVIXTimebarWidget::setPlayWidgetFrame(int frame)
{
    setCurrentPlayValue(frame);
    m_ui->floatingCurrTime->setCurrentValue(frame);
    updateBar();
}

int oVIXTimebarWidget::getTimeValue() const
{
    return m_playValue;
}

int oVIXTimebarWidget::getCurrentPlayValue() const
{
    return m_playValue;
}

int oVIXTimebarWidget::getSelectedValue() const
{
    return m_selectedValue;
}

void oVIXTimebarWidget::unblock()
{
    m_blocked = false;
}

void oVIXTimebarWidget::setCropValues(int first, int second)
{
    const Crop crop = orderedCrop(first, second);
    m_cropStart = crop.start;
    m_cropEnd = crop.end;
    m_ui->floatingLeftCrop->setCurrentValue(std::min(m_maximum, m_cropStart));
    m_ui->floatingRightCrop->setCurrentValue(std::min(m_maximum, m_cropEnd));
    constrainPlayTimeToCropValues();
    updateBar();
}

int oVIXTimebarWidget::getCropStartValue() const
{
    return m_cropStart;
}

int oVIXTimebarWidget::getCropEndValue() const
{
    return m_cropEnd;
}

float oVIXTimebarWidget::getCropStartPos() const
{
    return m_maximum > 0 ? float(m_cropStart) / float(m_maximum) : 0.0F;
}

float oVIXTimebarWidget::getCropEndPos() const
{
    return m_maximum > 0 ? float(m_cropEnd) / float(m_maximum) : 0.0F;
}

void oVIXTimebarWidget::constrainPlayTimeToCropValues()
{
    // The value that was set, not that of its pixel: a pixel may stand for frames on both sides of the crop's start.
    if (!jumpsToCropStart(m_ui->floatingCurrTime->getKeptValue(), {m_cropStart, m_cropEnd}))
        return;
    setCurrentPlayValue(m_cropStart);
    m_ui->floatingCurrTime->setCurrentValue(m_cropStart);
}

void oVIXTimebarWidget::setPlayStart(float share)
{
    m_playStart = saturatedInt(double(float(m_maximum) * share));
}

int oVIXTimebarWidget::getPlayStart() const
{
    return m_playStart;
}

void oVIXTimebarWidget::showCrops(bool show)
{
    m_ui->floatingLeftCrop->setVisible(show);
    m_ui->floatingRightCrop->setVisible(show);
}

void oVIXTimebarWidget::setClickable(bool clickable)
{
    m_ui->RealBar->setClickable(clickable);
    m_ui->floatingCurrTime->setVisible(clickable);
    if (clickable)
        showCrops(true);
}

bool oVIXTimebarWidget::isClickable() const
{
    return m_ui->RealBar->isClickable();
}

void oVIXTimebarWidget::updateMinMaxValues()
{
    const QMargins margins = m_ui->floatingArea->layout()->contentsMargins();
    const MarkerWays ways =
        markerWays(m_ui->floatingArea->width(), margins.left(), margins.right(), m_ui->floatingCurrTime->width());
    m_ui->floatingCurrTime->setMinMaxPosValue(ways.currentTime.first, ways.currentTime.last, m_maximum);
    m_ui->floatingLeftCrop->setMinMaxPosValue(ways.leftCrop.first, ways.leftCrop.last, m_maximum);
    m_ui->floatingRightCrop->setMinMaxPosValue(ways.rightCrop.first, ways.rightCrop.last, m_maximum);
}

void oVIXTimebarWidget::timeSelected()
{
    m_selectedValue = m_ui->RealBar->getSelectedValue();
    setCurrentPlayValue(m_selectedValue);
    m_ui->floatingCurrTime->setCurrentValue(m_selectedValue);
    updateBar();
    m_blocked = true;
    emit s_valuePicked();
}

void oVIXTimebarWidget::timeDragChange()
{
    pickMarkerFrame(true);
}

void oVIXTimebarWidget::timeDragReleased()
{
    m_ui->floatingCurrTime->setCurrentValue(m_playValue);
    endInteraction();
}

void oVIXTimebarWidget::timeLabelEditStarted()
{
    m_interacting = true;
}

void oVIXTimebarWidget::timeLabelEditFinished()
{
    if (m_ui->floatingCurrTime->hasGivenUpEdit())
        endInteraction();
    else
        pickMarkerFrame(false);
}

void oVIXTimebarWidget::leftCropChanged()
{
    applyLeftCrop(true);
}

void oVIXTimebarWidget::leftCropEditStarted()
{
    m_interacting = true;
}

void oVIXTimebarWidget::leftCropEditFinished()
{
    if (m_ui->floatingLeftCrop->hasGivenUpEdit())
        endInteraction();
    else
        applyLeftCrop(false);
}

void oVIXTimebarWidget::rightCropChanged()
{
    applyRightCrop(true);
}

void oVIXTimebarWidget::rightCropEditStarted()
{
    m_interacting = true;
}

void oVIXTimebarWidget::rightCropEditFinished()
{
    if (m_ui->floatingRightCrop->hasGivenUpEdit())
        endInteraction();
    else
        applyRightCrop(false);
}

void oVIXTimebarWidget::cropDragReleased()
{
    m_ui->floatingLeftCrop->setCurrentValue(m_cropStart);
    m_ui->floatingRightCrop->setCurrentValue(m_cropEnd);
    endInteraction();
}

void oVIXTimebarWidget::hideLabels()
{
    m_hideTimer->stop();
    if (m_interacting)
        return;
    m_fade->disappear();
}

void oVIXTimebarWidget::showLabels()
{
    m_hideTimer->stop();
    m_fade->appear();
}

void oVIXTimebarWidget::resizeEvent(QResizeEvent *event)
{
    fitToWidth();
    QFrame::resizeEvent(event);
}

bool oVIXTimebarWidget::eventFilter(QObject *watched, QEvent *event)
{
    if (watched == m_ui->floatingArea) {
        if (event->type() == QEvent::Resize)
            fitToWidth(); // before the first show it gets its width after the timebar
    } else if (watched != this) {
        if (event->type() == QEvent::FocusIn)
            showLabels();
        else if (event->type() == QEvent::FocusOut)
            hideLaterIfLeft();
    } else if (event->type() == QEvent::Enter) {
        if (isPointerInside()) {
            m_hideTimer->stop();
            if (m_fade->opacity() < 1.0)
                showLabels();
        }
    } else if (event->type() == QEvent::Leave) {
        hideLaterIfLeft();
    }
    return QFrame::eventFilter(watched, event);
}

std::array<OvixMovableLabel *, 3> oVIXTimebarWidget::markers() const
{
    return {m_ui->floatingCurrTime, m_ui->floatingLeftCrop, m_ui->floatingRightCrop};
}

void oVIXTimebarWidget::connectMarkers()
{
    using Timebar = oVIXTimebarWidget;
    using Marker = OvixMovableLabel;
    connect(m_ui->floatingCurrTime, &Marker::moved, this, &Timebar::timeDragChange);
    connect(m_ui->floatingCurrTime, &Marker::released, this, &Timebar::timeDragReleased);
    connect(m_ui->floatingCurrTime, &Marker::editingStarted, this, &Timebar::timeLabelEditStarted);
    connect(m_ui->floatingCurrTime, &Marker::editingFinished, this, &Timebar::timeLabelEditFinished);
    connect(m_ui->floatingLeftCrop, &Marker::moved, this, &Timebar::leftCropChanged);
    connect(m_ui->floatingLeftCrop, &Marker::released, this, &Timebar::cropDragReleased);
    connect(m_ui->floatingLeftCrop, &Marker::editingStarted, this, &Timebar::leftCropEditStarted);
    connect(m_ui->floatingLeftCrop, &Marker::editingFinished, this, &Timebar::leftCropEditFinished);
    connect(m_ui->floatingRightCrop, &Marker::moved, this, &Timebar::rightCropChanged);
    connect(m_ui->floatingRightCrop, &Marker::released, this, &Timebar::cropDragReleased);
    connect(m_ui->floatingRightCrop, &Marker::editingStarted, this, &Timebar::rightCropEditStarted);
    connect(m_ui->floatingRightCrop, &Marker::editingFinished, this, &Timebar::rightCropEditFinished);
}

void oVIXTimebarWidget::setCurrentPlayValue(int frame)
{
    if (!m_blocked)
        m_playValue = nextPlayValue(m_playValue, frame, {m_cachedValue, m_maximum, m_cropStart, m_cropEnd});
}

void oVIXTimebarWidget::updateBar()
{
    oVIXProgressBar *bar = m_ui->RealBar;
    {
        const UpdatesHeld held(bar); // one paint for all of it
        bar->setValue(std::clamp(m_cachedValue, bar->minimum(), bar->maximum()));
        bar->setBands(m_cropStart, m_cropEnd, m_playValue);
    }
    bar->update();
    bar->repaint();
}

void oVIXTimebarWidget::fitToWidth()
{
    updateMinMaxValues();
    constrainPlayTimeToCropValues();
    updateBar();
}

void oVIXTimebarWidget::pickMarkerFrame(bool interacting)
{
    m_selectedValue = m_ui->floatingCurrTime->getValue();
    setCurrentPlayValue(m_selectedValue);
    updateBar();
    m_blocked = true;
    if (interacting)
        m_interacting = true;
    else
        endInteraction();
    emit s_valuePicked();
}

void oVIXTimebarWidget::applyLeftCrop(bool interacting)
{
    OvixMovableLabel *left = m_ui->floatingLeftCrop;
    OvixMovableLabel *right = m_ui->floatingRightCrop;
    left->raise();
    const bool passed = hasPassed(left, right);
    const Crop crop = cropWithStartAt(left->getValue(), {m_cropStart, m_cropEnd}, passed);
    if (passed)
        right->setCurrentValue(crop.end);
    applyCrop(crop, interacting);
}

void oVIXTimebarWidget::applyRightCrop(bool interacting)
{
    OvixMovableLabel *left = m_ui->floatingLeftCrop;
    OvixMovableLabel *right = m_ui->floatingRightCrop;
    right->raise();
    const bool passed = hasPassed(left, right);
    const Crop crop = cropWithEndAt(right->getValue(), {m_cropStart, m_cropEnd}, passed);
    if (passed)
        left->setCurrentValue(crop.start);
    applyCrop(crop, interacting);
}

void oVIXTimebarWidget::applyCrop(const Crop &crop, bool interacting)
{
    m_cropStart = crop.start;
    m_cropEnd = crop.end;
    constrainPlayTimeToCropValues();
    updateBar();
    if (interacting)
        m_interacting = true;
    else
        endInteraction();
    emit s_cropChanged();
}

/// After a drag, while the double click goes on that has opened an editor, the interaction goes on too.
void oVIXTimebarWidget::endInteraction()
{
    const auto all = markers();
    m_interacting = std::any_of(all.begin(), all.end(), [](const auto *marker) { return marker->isEditing(); });
    hideLaterIfLeft();
}

void oVIXTimebarWidget::hideLaterIfLeft()
{
    if (m_fade->isSeen() && !isPointerInside() && !m_interacting && !holdsKeyboard())
        m_hideTimer->start(hideDelayMsecs);
}

bool oVIXTimebarWidget::holdsKeyboard() const
{
    const auto all = markers();
    return std::any_of(all.begin(), all.end(), std::mem_fn(&QWidget::hasFocus));
}

bool oVIXTimebarWidget::isPointerInside() const
{
    return isVisible() && rect().contains(mapFromGlobal(QCursor::pos()));
}
