#pragma once

#include "values/PieRing.h"

#include <QRegion>

#include <vector>

class QAbstractItemModel;
struct PieChartLook;

/// The ring of a pie chart on screen: the slices of a model, how far they are turned, and what the pointer is doing
/// with them.
class PieRingView
{
public:
    struct Hover
    {
        int slice = -1;
        PieRing::Edge edge = PieRing::Edge::None; ///< of the selected slice, when it can be grabbed there
    };

    /// The slices are read anew when they are needed next. Whether that is news.
    bool markStale();
    /// Does nothing while they are not stale.
    void read(const QAbstractItemModel *model);

    const std::vector<PieRing::Slice> &slices() const { return m_slices; }
    /// Null where there is no such slice.
    const PieRing::Arc *arcOf(int row) const;
    /// -1 in a gap and off the ring.
    int sliceAt(double distance, int angle) const;

    Hover hoverAt(double distance, int angle, int selected) const;
    const Hover &hover() const { return m_hover; }
    /// Whether it is another one.
    bool setHover(const Hover &hover);
    /// Where a chart of this size shows @p hover while @p selected is selected: the slice and its caption, the edge.
    QRegion areaOf(const Hover &hover, int selected, const QSize &size) const;

    void press(const PieRing::Arc &arc, int angle, double share) { m_drag = PieRing::Drag(arc, angle, share); }
    PieRing::Drag &drag() { return m_drag; }
    /// Whether the drag had changed anything.
    bool endDrag();

    /// Turns the ring so that the edge of the slice that is not dragged is where it was at the press. Whether it has
    /// to be painted again for that.
    bool holdOtherEdge(int row);
    void turnBack() { m_turn = 0; }

    /// Without what only the chart knows: the area, the selection and the texts.
    PieChartLook look() const;

private:
    std::vector<PieRing::Slice> m_slices;
    std::vector<PieRing::Arc> m_arcs;
    bool m_stale = true;
    int m_turn = 0;
    Hover m_hover;
    PieRing::Drag m_drag;
};
