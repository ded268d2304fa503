#include "panels/ParametersPanel.h"

#include "look/Sheets.h"
#include "panels/CrowdEditor.h"

#include <VelmoCurtainWidget.h>
#include <oVIXCombo.h>

#include <QMainWindow>
#include <QScrollArea>
#include <QScrollBar>
#include <QVBoxLayout>

using namespace Qt::StringLiterals;

namespace {

constexpr int panelWidth = 280;

QString percentText(double zoom)
{
    return ParametersPanel::tr("%1 %").arg(qRound(zoom * 100));
}

} // namespace

ParametersPanel::ParametersPanel(QMainWindow *window)
    : oVIXDock(window, u"parameters"_s, false, false, false, window), m_content(new QWidget(this))
{
    setTitle(tr("Parameters"), tr("View"), u"Inter"_s, 11);
    m_content->setObjectName(u"panel"_s);
    m_content->setAttribute(Qt::WA_StyledBackground);
    m_content->setStyleSheet(Sheets::toolPanel());
    auto *layout = new QVBoxLayout(m_content);
    layout->setContentsMargins(12, 12, 12, 12);
    layout->setSpacing(8);
    layout->setAlignment(Qt::AlignTop);

    // In its place before it is filled: all that a widget holds is styled anew when it moves.
    auto *area = new QScrollArea(this);
    area->setStyleSheet(Sheets::clearScrollArea());
    area->verticalScrollBar()->setStyleSheet(Sheets::scrollBar());
    area->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    area->setWidgetResizable(true);
    area->setMinimumWidth(panelWidth);
    setWidget(area);
    area->setWidget(m_content);

    VelmoCurtainWidget *view = addSection(tr("View"), tr("what is shown, and how"));
    oVIXCombo *colours = addCombo(view, tr("Colour by"));
    for (const auto &[text, value] :
         {std::pair(tr("Tag"), ViewOptions::Colours::Tags), std::pair(tr("Type"), ViewOptions::Colours::Types),
          std::pair(tr("Goal"), ViewOptions::Colours::Goals)})
        colours->addItem(text, QString::number(int(value)));
    colours->setCurrentIndex(0);
    onChoice(colours,
             [this, colours] { m_options.colours = ViewOptions::Colours(colours->getCurrentComboMeta().toInt()); });

    m_zoom = addCombo(view, tr("Zoom"));
    for (const double zoom : {0.5, 1.0, 2.0, 4.0})
        m_zoom->addItem(percentText(zoom), QString::number(zoom));
    setZoom(m_options.zoom);
    onChoice(m_zoom, [this] { m_options.zoom = m_zoom->getCurrentComboMeta().toDouble(); });

    oVIXCombo *goals = addCombo(view, QString());
    goals->setYesNo(tr("Goals"));
    goals->setChecked(m_options.goals);
    onChoice(goals, [this, goals] { m_options.goals = goals->isChecked(); });

    oVIXCombo *vehicles = addCombo(view, QString());
    vehicles->setYesNo(tr("Vehicles"));
    vehicles->setChecked(m_options.vehicles);
    onChoice(vehicles, [this, vehicles] { m_options.vehicles = vehicles->isChecked(); });

    m_crowd = new CrowdEditor(nullptr);
    addSection(tr("Crowd"), tr("who walks, and how"))->addToContainerWidget(m_crowd);
}

CrowdEditor *ParametersPanel::crowd() const
{
    return m_crowd;
}

const ViewOptions &ParametersPanel::options() const
{
    return m_options;
}

void ParametersPanel::setZoom(double zoom)
{
    m_options.zoom = zoom;
    m_zoom->setComboText(percentText(zoom), QString::number(zoom));
}

VelmoCurtainWidget *ParametersPanel::addSection(const QString &title, const QString &subtitle)
{
    auto *section = new VelmoCurtainWidget(m_content);
    section->setTitle(title);
    section->setSubtitle(subtitle);
    section->setFocusPolicy(Qt::StrongFocus);
    m_content->layout()->addWidget(section);
    return section;
}

oVIXCombo *ParametersPanel::addCombo(VelmoCurtainWidget *section, const QString &caption)
{
    auto *combo = new oVIXCombo(m_content);
    combo->setText(caption);
    combo->setFocusPolicy(Qt::StrongFocus);
    section->addToContainerWidget(combo);
    return combo;
}

template <class Change> void ParametersPanel::onChoice(oVIXCombo *combo, Change change)
{
    connect(combo, &oVIXCombo::currentIndexChanged, this, [this, change] {
        change();
        emit optionsChanged(m_options);
    });
}
