#include "values/PieRing.h"

#include "values/PieShares.h"

#include <algorithm>
#include <cmath>

namespace {

constexpr double pi = 3.14159265358979323846;
constexpr int twelveOClock = PieRing::FullTurn / 4;

double extent(const PieRing::Slice &slice)
{
    return std::max(double(PieShares::plausible(slice.share)), 0.0);
}

} // namespace

PieRing::Polar PieRing::polar(const QPoint &point, const QSize &size)
{
    const QPoint middle(size.width() / 2, size.height() / 2);
    const double dx = double(point.x()) - middle.x();
    const double dy = double(point.y()) - middle.y();
    return {std::sqrt(dx * dx + dy * dy), int(float(std::atan2(dy, dx) * 180 / pi + 180) * 16)};
}

bool PieRing::isOnRing(double distance)
{
    return distance >= InnerRadius && distance <= OuterRadius;
}

int PieRing::wrapped(int angle)
{
    const int rest = angle % FullTurn;
    return rest < 0 ? rest + FullTurn : rest;
}

int PieRing::shortestTurn(int from, int to)
{
    const int turn = wrapped(wrapped(to) - wrapped(from));
    return turn > HalfTurn ? turn - FullTurn : turn;
}

std::vector<PieRing::Arc> PieRing::arcs(const std::vector<Slice> &slices, int turn)
{
    double sum = 0.0;
    for (const Slice &slice : slices)
        sum += extent(slice);
    const double whole = std::max(sum, double(PieShares::Whole));

    std::vector<Arc> arcs;
    arcs.reserve(slices.size());
    double before = 0.0;
    int end = 0;
    for (const Slice &slice : slices) {
        // Rounded from the sum, so that neither gaps nor overlaps add up.
        before += extent(slice);
        const int start = end;
        end = std::min(int(std::lround(before / whole * FullTurn)), FullTurn);
        arcs.push_back({wrapped(HalfTurn - (twelveOClock + wrapped(turn) + start)), end - start, slice.locked});
    }
    return arcs;
}

int PieRing::startAngle(const Arc &arc)
{
    return wrapped(HalfTurn - arc.start);
}

int PieRing::endAngle(const Arc &arc)
{
    return wrapped(startAngle(arc) + arc.span);
}

QRect PieRing::boundingRect(const Arc &arc, const QSize &size)
{
    // Its corners, and where it reaches farthest in the four directions.
    std::vector<int> angles{startAngle(arc), startAngle(arc) + arc.span};
    for (int quarter = 0; quarter < FullTurn; quarter += FullTurn / 4) {
        if (wrapped(quarter - startAngle(arc)) < arc.span)
            angles.push_back(quarter);
    }
    QRectF box;
    for (const int angle : angles) {
        const double direction = (angle / 16.0 - 180) / 180 * pi;
        for (const int radius : {InnerRadius, OuterRadius}) {
            const QRectF corner(radius * std::cos(direction), radius * std::sin(direction), 1, 1);
            box = box.isNull() ? corner : box.united(corner);
        }
    }
    return box.translated(QPoint(size.width() / 2, size.height() / 2)).toAlignedRect();
}

int PieRing::sliceAt(const std::vector<Arc> &arcs, int angle)
{
    const auto contains = [angle](const Arc &arc) { return wrapped(angle - startAngle(arc)) < arc.span; };
    const auto found = std::find_if(arcs.cbegin(), arcs.cend(), contains);
    return found == arcs.cend() ? -1 : int(found - arcs.cbegin());
}

PieRing::Edge PieRing::edgeAt(const Arc &arc, int angle)
{
    if (std::abs(shortestTurn(startAngle(arc), angle)) <= GrabReach)
        return Edge::Start;
    if (std::abs(shortestTurn(endAngle(arc), angle)) <= GrabReach)
        return Edge::End;
    return Edge::None;
}

PieRing::Drag::Drag(const Arc &arc, int angle, double share)
    : m_edge(edgeAt(arc, angle)), m_shareAtPress(share), m_angle(angle), m_anchor(otherEdge(arc))
{ }

bool PieRing::Drag::moveTo(int angle)
{
    const int step = shortestTurn(m_angle, angle);
    if (!isRunning() || step == 0)
        return false;
    m_angle = angle;
    m_travelled += m_edge == Edge::Start ? -step : step;
    m_moved = true;
    return true;
}

double PieRing::Drag::share() const
{
    return m_shareAtPress + m_travelled * 0.0625 / 360 * 100;
}

int PieRing::Drag::slip(const Arc &arc) const
{
    return shortestTurn(otherEdge(arc), m_anchor);
}

int PieRing::Drag::otherEdge(const Arc &arc) const
{
    return m_edge == Edge::Start ? endAngle(arc) : startAngle(arc);
}
