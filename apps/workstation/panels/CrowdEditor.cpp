#include "panels/CrowdEditor.h"

#include "scenes/Scene.h"

#include <oVIXButton.h>
#include <oVIXPieChartWidget.h>
#include <oVIXSliderWidget.h>

#include <QSignalBlocker>
#include <QStandardItemModel>
#include <QVBoxLayout>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

constexpr int mostPeople = 2000;
constexpr int lockedRole = Qt::UserRole + 1;
constexpr int shareTypeRole = Qt::UserRole + 2;

} // namespace

CrowdEditor::CrowdEditor(QWidget *parent)
    : QWidget(parent), m_shares(new QStandardItemModel(this)), m_pie(new oVIXPieChartWidget(this)),
      m_bake(new oVIXButton(this))
{
    auto *layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(8);

    const CrowdSettings defaults;
    m_count = addSlider(tr("People"), QString());
    m_count->setLimitsAndValues(0, mostPeople, 0, 10);
    m_speed = addSlider(tr("Speed"), tr(" m/s"));
    m_speed->changeMode(oVIXSliderWidget::DoubleRange);
    m_speed->setLimitsAndValues(0.1, 4.0, defaults.fastest, 0.1);
    m_speed->setLimitsAndValuesMin(0.1, 4.0, defaults.slowest, 0.1);
    m_spacing = addSlider(tr("Spacing"), tr(" m"));
    m_spacing->changeMode(oVIXSliderWidget::SingleDouble);
    m_spacing->setLimitsAndValues(0.2, 5.0, defaults.spacing, 0.1);
    m_spacing->setSliderMaximum(2.0);
    m_turnRate = addSlider(tr("Turn rate"), tr(" \u00b0/s"));
    m_turnRate->setLimitsAndValues(5, 360, defaults.turnRate, 5);
    m_seed = addSlider(tr("Seed"), QString());
    m_seed->changeMode(oVIXSliderWidget::Lateral);
    m_seed->setLimitsAndValues(0, 9999, defaults.seed, 1);
    m_seed->setDecimals(0);

    m_pie->setAccessibleName(tr("Shares of the types"));
    m_pie->setFocusPolicy(Qt::TabFocus);
    m_pie->setModel(m_shares);
    layout->addWidget(m_pie, 0, Qt::AlignHCenter);
    connect(m_pie, &oVIXPieChartWidget::valueFinished, this, &CrowdEditor::edited);

    m_bake->setAlignment(Qt::AlignCenter);
    m_bake->setFocusPolicy(Qt::StrongFocus); // a press commits what is being typed
    layout->addWidget(m_bake);
    connect(m_bake, &oVIXButton::clicked, this, &CrowdEditor::bakeClicked);
    showBaking(false);
}

void CrowdEditor::setScene(const Scene &scene)
{
    const QSignalBlocker noEdit(this);
    const CrowdSettings settings = CrowdSettings::of(scene);
    m_count->setMaximum(std::max(mostPeople, int(scene.people.size())));
    m_count->setValue(settings.count);
    m_speed->setValueMin(settings.slowest);
    m_speed->setValue(settings.fastest);
    m_spacing->setValue(settings.spacing);
    m_turnRate->setValue(settings.turnRate);
    m_seed->setValue(settings.seed);
    m_shares->clear();
    for (const CrowdSettings::Share &share : settings.shares) {
        auto *row = new QStandardItem;
        row->setData(share.type.isEmpty() ? tr("Without type") : share.type, Qt::AccessibleTextRole);
        row->setData(float(share.percent), Qt::EditRole);
        row->setData(false, lockedRole);
        row->setData(share.type, shareTypeRole);
        m_shares->appendRow(row);
    }
    m_pie->setVisible(m_shares->rowCount() > 0);
    if (m_shares->rowCount() > 0)
        m_pie->onSelectionChanged(0);
}

CrowdSettings CrowdEditor::settings() const
{
    CrowdSettings settings;
    settings.count = int(m_count->value());
    settings.slowest = m_speed->valueMin();
    settings.fastest = m_speed->value();
    settings.spacing = m_spacing->value();
    settings.turnRate = m_turnRate->value();
    settings.seed = int(m_seed->value());
    for (int row = 0; row < m_shares->rowCount(); ++row) {
        const QStandardItem *share = m_shares->item(row);
        settings.shares << CrowdSettings::Share{share->data(shareTypeRole).toString(),
                                                share->data(Qt::EditRole).toDouble()};
    }
    return settings;
}

void CrowdEditor::showBaking(bool isBaking)
{
    m_bake->setText(isBaking ? tr("Stop baking") : tr("Bake"));
}

oVIXSliderWidget *CrowdEditor::addSlider(const QString &prefix, const QString &suffix)
{
    auto *slider = new oVIXSliderWidget(this);
    slider->setPrefix(prefix);
    slider->setSuffix(suffix);
    slider->setAccessibleName(prefix);
    layout()->addWidget(slider);
    connect(slider, &oVIXSliderWidget::valueFinished, this, &CrowdEditor::edited);
    return slider;
}
