#pragma once

#include <QPoint>
#include <QRect>
#include <QSize>

#include <vector>

/// Where the slices of the pie chart lie on its ring, and what a point on it means. Angles are in sixteenths of a
/// degree, from 0 at nine o'clock clockwise to 5760; lengths in logical pixels.
namespace PieRing {

inline constexpr int FullTurn = 5760;
inline constexpr int HalfTurn = FullTurn / 2;
inline constexpr int InnerRadius = 50;
inline constexpr int OuterRadius = 100;
/// How far from an edge it can be grabbed.
inline constexpr int GrabReach = 160;

struct Slice
{
    float share = 0.0F; ///< in percent
    bool locked = false;
};

/// A slice on screen.
struct Arc
{
    int start = 0; ///< as the toolkit's arcs: counterclockwise from three o'clock
    int span = 0; ///< clockwise, 0 to 5760
    bool locked = false;
};

enum class Edge { None, Start, End };

/// A point as seen from the middle of the ring.
struct Polar
{
    double distance = 0.0;
    int angle = 0;
};

Polar polar(const QPoint &point, const QSize &size);
/// Whether the distance is one of the ring, its borders included.
bool isOnRing(double distance);

/// The same angle in 0 to 5759.
int wrapped(int angle);
/// The shorter way from one angle to another, -2879 to 2880: the seam at nine o'clock makes no difference.
int shortestTurn(int from, int to);

/// One arc a slice, clockwise one after the other; the first begins at twelve o'clock, turned by @p turn. Slices that
/// make less than a hundred percent leave a gap; those that make more are shrunk to the ring. Negative shares and those
/// that are no numbers count as nothing.
std::vector<Arc> arcs(const std::vector<Slice> &slices, int turn);

/// The angle of the arc's start edge and of its end edge.
int startAngle(const Arc &arc);
int endAngle(const Arc &arc);

/// The smallest rectangle round a slice in a widget of this size.
QRect boundingRect(const Arc &arc, const QSize &size);

/// The slice whose arc contains the angle; -1 in a gap.
int sliceAt(const std::vector<Arc> &arcs, int angle);
/// The edge that a press at this angle grabs: the start edge where it could be both.
Edge edgeAt(const Arc &arc, int angle);

/// A slice's edge on its way round the ring. A default one is no drag.
class Drag
{
public:
    Drag() = default;
    /// A press at this angle on a slice that has @p share; no drag where no edge is near.
    Drag(const Arc &arc, int angle, double share);

    Edge edge() const { return m_edge; }
    bool isRunning() const { return m_edge != Edge::None; }
    bool hasMoved() const { return m_moved; }

    /// Whether that was a step. Steps are less than half a turn, and add up.
    bool moveTo(int angle);
    /// The share that the way from the press leads to; it may be anything.
    double share() const;
    /// How far the ring has to be turned for the other edge to be where it was at the press.
    int slip(const Arc &arc) const;

private:
    int otherEdge(const Arc &arc) const;

    Edge m_edge = Edge::None;
    double m_shareAtPress = 0.0;
    int m_angle = 0;
    int m_travelled = 0;
    int m_anchor = 0;
    bool m_moved = false;
};

} // namespace PieRing
