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

QRegion PieRingView::areaOf(const Hover &hover, int selected, const QSize &size) const
{
    constexpr int handle = 6;
    QRegion area;
    const auto add = [&](const PieRing::Arc &arc) {
        area += PieRing::boundingRect(arc, size).adjusted(-handle, -handle, handle, handle);
    };
    const PieRing::Arc *lit = hover.slice == selected ? nullptr : arcOf(hover.slice);
    if (lit) {
        add(*lit);
        QRect hole(0, 0, 2 * PieRing::InnerRadius, 2 * PieRing::InnerRadius);
        hole.moveCenter({size.width() / 2, size.height() / 2});
        area += hole;
    }
    const PieRing::Arc *held = arcOf(selected);
    if (held && hover.edge != PieRing::Edge::None) {
        const int end = held->start - (hover.edge == PieRing::Edge::End ? held->span : 0);
        add({end + PieRing::GrabReach, 2 * PieRing::GrabReach});
    }
    return area;
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
