#include "values/PieRingView.h"

#include "values/PieChartPainter.h"
#include "values/PieModel.h"

#include <utility>

bool PieRingView::markStale()
{
    return !std::exchange(m_stale, true);
}

void PieRingView::read(const QAbstractItemModel *model)
{
    if (!std::exchange(m_stale, false))
        return;
    m_slices = PieModel::slices(model);
    m_arcs = PieRing::arcs(m_slices, m_turn);
}

const PieRing::Arc *PieRingView::arcOf(int row) const
{
    return row >= 0 && row < int(m_arcs.size()) ? &m_arcs[size_t(row)] : nullptr;
}

int PieRingView::sliceAt(double distance, int angle) const
{
    return PieRing::isOnRing(distance) ? PieRing::sliceAt(m_arcs, angle) : -1;
}

PieRingView::Hover PieRingView::hoverAt(double distance, int angle, int selected) const
{
    if (!PieRing::isOnRing(distance))
        return {};
    const PieRing::Arc *arc = arcOf(selected);
    return {PieRing::sliceAt(m_arcs, angle), arc && !arc->locked ? PieRing::edgeAt(*arc, angle) : PieRing::Edge::None};
}

bool PieRingView::setHover(const Hover &hover)
{
    const Hover before = std::exchange(m_hover, hover);
    return before.slice != hover.slice || before.edge != hover.edge;
}

bool PieRingView::endDrag()
{
    return std::exchange(m_drag, {}).hasMoved();
}

bool PieRingView::holdOtherEdge(int row)
{
    const PieRing::Arc *arc = arcOf(row);
    const int slip = arc ? m_drag.slip(*arc) : 0;
    if (slip == 0)
        return false;
    m_turn = PieRing::wrapped(m_turn + slip);
    m_stale = true;
    return true;
}

PieChartLook PieRingView::look() const
{
    PieChartLook look;
    look.arcs = m_arcs;
    look.shares.reserve(m_slices.size());
    for (const PieRing::Slice &slice : m_slices)
        look.shares.push_back(slice.share);
    look.hovered = m_hover.slice;
    look.grabbed = m_drag.isRunning() ? m_drag.edge() : m_hover.edge;
    return look;
}
