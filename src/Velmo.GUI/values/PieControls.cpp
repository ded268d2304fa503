#include "values/PieControls.h"

#include "foundation/OvixSvgButton.h"
#include "values/PieShares.h"
#include "values/oVIXSliderWidget.h"

#include <QDoubleSpinBox>
#include <QPoint>

#include <cmath>

using namespace Qt::StringLiterals;

namespace {

constexpr int boxWidth = 90;
constexpr int boxExtraHeight = 20;
constexpr int lockSide = 20;
constexpr int lockRise = 30; // its middle above the ring's

} // namespace

PieControls::PieControls(QWidget *chart)
    : m_slider(new oVIXSliderWidget(chart)), m_box(m_slider->findChild<QDoubleSpinBox *>(u"lateralSpin"_s)),
      m_lockButton(new OvixSvgButton(chart))
{
    m_slider->changeMode(oVIXSliderWidget::Lateral);
    m_slider->setFixedSize(boxWidth, m_slider->height() + boxExtraHeight);
    m_slider->setMinimum(0);
    m_slider->setSliderMaximum(PieShares::Whole);
    m_slider->setSpinBoxMaximum(PieShares::Whole);
    m_slider->setSuffix(u"%"_s);
    m_slider->setAccessibleName(tr("Share"));
    m_box->setAccessibleName(tr("Share"));

    m_lockButton->setFilename(u":/Design/Lock"_s);
    m_lockButton->setFilenameInverted(u":/Design/LockChecked"_s);
    m_lockButton->setCheckable(true);
    m_lockButton->setFixedSize(lockSide, lockSide);
    m_lockButton->setColorScheme(OvixSvgLabel::Charcoal);
    m_lockButton->setBackgroundVisible(false, false);
    m_lockButton->setHoverVisible(true);
    m_lockButton->setRoundedBorder(4);
    m_lockButton->setToolTip(tr("Lock Unlock variation pie chart tooltip"));
    m_lockButton->setAccessibleName(tr("Lock"));
}

void PieControls::centreOn(const QPoint &centre)
{
    m_slider->move(centre - QPoint(boxWidth / 2, m_slider->height() / 2));
    m_lockButton->move(centre - QPoint(lockSide / 2, lockRise + lockSide / 2));
}

double PieControls::share() const
{
    return m_slider->value();
}

bool PieControls::shows(double share) const
{
    return std::abs(m_box->value() - share) < 0.5 * std::pow(10.0, -m_box->decimals());
}

void PieControls::setShare(double share)
{
    m_writing = true;
    m_slider->setValue(share);
    m_writing = false;
}

void PieControls::correctShare(double share)
{
    if (shows(share))
        return;
    m_writing = true;
    m_box->setValue(share);
    m_writing = false;
}

void PieControls::setLock(bool selected, bool locked)
{
    m_slider->setEnabled(selected && !locked);
    m_slider->setVisible(selected);
    m_lockButton->setVisible(selected);
    m_lockButton->setChecked(locked);
}

void PieControls::finishTyping()
{
    if (m_box->hasFocus())
        emit m_box->editingFinished();
}
