#pragma once

#include "values/PieRing.h"

#include <QPoint>
#include <QRect>
#include <QString>

#include <vector>

class QPainter;

/// What the pie chart shows of its slices; the two lists are as long as each other.
struct PieChartLook
{
    std::vector<PieRing::Arc> arcs;
    std::vector<float> shares; ///< in percent
    QRect area; ///< the widget
    int selected = -1;
    int hovered = -1;
    /// The edge of the selected slice whose grab zone is shown.
    PieRing::Edge grabbed = PieRing::Edge::None;
    bool enabled = true;
    /// Two lines inside the ring: below the controls, or in the middle while nothing is selected.
    QString title;
    QString detail;
};

/// "25" or "33.3".
QString pieNumberText(float share);
/// "25%" or "33.3%".
QString piePercentText(float share);

/// Draws the ring: slices in colours that differ in lightness from their neighbours, the selected one in the accent and
/// larger, percentages on the slices or beside the narrow ones where the area has room, a lock on locked slices.
void paintPieChart(QPainter &painter, const PieChartLook &look);
