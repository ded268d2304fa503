#include "values/PieChartPainter.h"

#include "foundation/InterFont.h"

#include <QFontMetricsF>
#include <QPainter>
#include <QPainterPath>
#include <QtMath>

#include <algorithm>
#include <array>
#include <cmath>

using namespace Qt::StringLiterals;
using PieRing::Arc;

namespace {

// Light and dark in turn: neighbours differ for those too who do not see the hues.
constexpr std::array<QRgb, 6> sliceColours{qRgb(214, 172, 106), qRgb(106, 88, 150),  qRgb(146, 188, 146),
                                           qRgb(164, 84, 72),   qRgb(200, 172, 204), qRgb(62, 116, 98)};
/// For the last slice of an odd number, between the lightness of its neighbours.
constexpr QRgb betweenColour = qRgb(142, 142, 142);
constexpr QRgb accentColour = qRgb(116, 211, 252);
constexpr QRgb trackColour = qRgb(59, 59, 59);
constexpr QRgb darkInk = qRgb(28, 28, 28);
constexpr QRgb lightInk = qRgb(255, 255, 255);
constexpr QRgb labelInk = qRgb(219, 219, 219);
constexpr QRgb secondaryInk = qRgb(156, 156, 156);
constexpr QRgb leaderColour = qRgb(105, 105, 105);

constexpr double inner = PieRing::InnerRadius;
constexpr double outer = PieRing::OuterRadius;
constexpr double middle = (inner + outer) / 2;
constexpr double inset = 3; // of the slices that are not selected
constexpr double gap = 2;
constexpr double smallestGappedArc = 6;
constexpr double textMargin = 3;
constexpr double lockWidth = 8;
constexpr double lockHeight = 9;
constexpr double lockSpacing = 3;
constexpr double smallestLock = 3.5;
constexpr int fontPixels = 11;
constexpr int narrowFontPixels = 10;
constexpr double labelDistance = 5;
constexpr double labelTier = 13;
constexpr int labelTiers = 3;
constexpr int labelShift = 80; // sixteenths of a degree
constexpr int labelSteps = 5;
constexpr double captionTop = 12;
constexpr double captionHeight = 14;
constexpr double captionRadius = inner - 2;
constexpr double disabledOpacity = 0.35;

/// Radians, clockwise from three o'clock, of an angle of the ring.
double radians(double angle)
{
    return qDegreesToRadians(angle / 16 - 180);
}

double middleAngle(const Arc &arc)
{
    return PieRing::startAngle(arc) + arc.span / 2.0;
}

QPointF at(double radius, double angle)
{
    return {radius * std::cos(radians(angle)), radius * std::sin(radians(angle))};
}

/// How wide the slice is at a radius, straight across.
double widthAt(const Arc &arc, double radius)
{
    return arc.span >= PieRing::HalfTurn ? 2 * radius : 2 * radius * std::sin(qDegreesToRadians(arc.span / 32.0));
}

/// Part of a ring round the origin. The sides are parallel to the radius at a distance, so that gaps are even.
QPainterPath sector(double angle, double span, double from, double to, double sideGap)
{
    QPainterPath path;
    if (span >= PieRing::FullTurn) {
        path.addEllipse(QPointF(), to, to);
        path.addEllipse(QPointF(), from, from);
        return path;
    }
    const auto square = [](double radius) { return QRectF(-radius, -radius, 2 * radius, 2 * radius); };
    const double start = -qRadiansToDegrees(radians(angle));
    const double extent = span / 16;
    const double outerGap = qRadiansToDegrees(std::asin(sideGap / 2 / to));
    const double innerGap = qRadiansToDegrees(std::asin(sideGap / 2 / from));
    path.arcMoveTo(square(to), start - outerGap);
    path.arcTo(square(to), start - outerGap, -(extent - 2 * outerGap));
    path.arcTo(square(from), start - extent + innerGap, extent - 2 * innerGap);
    path.closeSubpath();
    return path;
}

/// A closed padlock that fills a box of 8 x 9 round the origin.
QPainterPath lockMark()
{
    QPainterPath shackle;
    shackle.moveTo(-2.2, 0);
    shackle.lineTo(-2.2, -1.8);
    shackle.arcTo(QRectF(-2.2, -4, 4.4, 4.4), 180, -180);
    shackle.lineTo(2.2, 0);
    QPainterPathStroker stroker;
    stroker.setWidth(1.3);
    QPainterPath mark = stroker.createStroke(shackle);
    mark.setFillRule(Qt::WindingFill);
    mark.addRoundedRect(QRectF(-lockWidth / 2, -0.5, lockWidth, 5), 1, 1);
    return mark;
}

class Painting
{
public:
    Painting(QPainter &painter, const PieChartLook &look)
        : m_painter(painter), m_look(look), m_font(interFont(fontPixels)), m_narrowFont(interFont(narrowFontPixels))
    {
        m_centre = QPoint(look.area.width() / 2, look.area.height() / 2);
        m_area = QRectF(look.area).translated(-m_centre);
    }

    void paint()
    {
        m_painter.save();
        m_painter.setRenderHint(QPainter::Antialiasing);
        m_painter.translate(m_centre);
        const int count = int(m_look.arcs.size());
        paintTrack();
        m_painter.setOpacity(m_look.enabled ? 1 : disabledOpacity);
        for (int row = 0; row < count; ++row)
            paintSlice(row);
        m_painter.setOpacity(1);
        paintGrabZone();
        // What does not fit on a slice has to find room between the others' labels; the selected one chooses first.
        if (m_look.selected >= 0)
            paintText(m_look.selected);
        for (int row = 0; row < count; ++row) {
            if (row != m_look.selected)
                paintText(row);
        }
        paintCaption();
        m_painter.restore();
    }

private:
    /// What the slices leave of the ring.
    void paintTrack()
    {
        int covered = 0;
        for (const Arc &arc : m_look.arcs)
            covered += arc.span;
        if (covered >= PieRing::FullTurn)
            return;
        const int start = m_look.arcs.empty() ? 0 : PieRing::endAngle(m_look.arcs.back());
        m_painter.fillPath(sector(start, PieRing::FullTurn - covered, inner + inset, outer - inset, covered ? gap : 0),
                           QColor(trackColour));
    }

    QColor colourOf(int row) const
    {
        const int count = int(m_look.arcs.size());
        if (row == m_look.selected)
            return QColor(accentColour);
        const bool betweenTwoLight = count > 1 && count % 2 == 1 && row == count - 1;
        return QColor(betweenTwoLight ? betweenColour : sliceColours[size_t(row) % sliceColours.size()]);
    }

    QColor inkOn(const QColor &colour) const
    {
        if (!m_look.enabled)
            return QColor(secondaryInk);
        return QColor(qGray(colour.rgb()) > 125 ? darkInk : lightInk);
    }

    void paintSlice(int row)
    {
        const Arc &arc = m_look.arcs[size_t(row)];
        if (arc.span == 0)
            return;
        const bool selected = row == m_look.selected;
        QColor colour = colourOf(row);
        if (row == m_look.hovered && !selected)
            colour = colour.lighter(115);
        const double room = widthAt(arc, inner);
        const double sideGap = room < smallestGappedArc ? room / smallestGappedArc * gap / 2 : gap;
        const double shrink = selected ? 0 : inset;
        const QPainterPath path = sector(PieRing::startAngle(arc), arc.span, inner + shrink, outer - shrink, sideGap);
        m_painter.fillPath(path, colour);
    }

    void paintGrabZone()
    {
        if (m_look.grabbed == PieRing::Edge::None || m_look.selected < 0)
            return;
        const Arc &arc = m_look.arcs[size_t(m_look.selected)];
        const int edge = m_look.grabbed == PieRing::Edge::Start ? PieRing::startAngle(arc) : PieRing::endAngle(arc);
        m_painter.fillPath(sector(edge - PieRing::GrabReach, 2 * PieRing::GrabReach, inner, outer, 0),
                           QColor(255, 255, 255, 70));
        m_painter.setPen(QPen(Qt::white, 3, Qt::SolidLine, Qt::RoundCap));
        m_painter.drawLine(at(inner + 2, edge), at(outer - 2, edge));
        m_painter.setPen(Qt::NoPen);
        m_painter.setBrush(Qt::white);
        m_painter.drawEllipse(at(middle, edge), 5, 5);
        m_painter.setBrush(Qt::NoBrush);
    }

    /// Whether a box lies on the slice with some room round it.
    bool fits(const QRectF &box, const Arc &arc) const
    {
        const QRectF roomy = box.adjusted(-textMargin, -textMargin, textMargin, textMargin);
        const auto isInside = [&](const QPointF &corner) {
            const double distance = std::hypot(corner.x(), corner.y());
            const double angle = (qRadiansToDegrees(std::atan2(corner.y(), corner.x())) + 180) * 16;
            return distance >= inner && distance <= outer
                && PieRing::wrapped(int(angle) - PieRing::startAngle(arc)) < arc.span;
        };
        const std::array corners{roomy.topLeft(), roomy.topRight(), roomy.bottomLeft(), roomy.bottomRight()};
        return std::all_of(corners.cbegin(), corners.cend(), isInside);
    }

    void paintLock(const QPointF &centre, double scale, const QColor &ink)
    {
        static const QPainterPath mark = lockMark();
        m_painter.save();
        m_painter.translate(centre);
        m_painter.scale(scale, scale);
        m_painter.fillPath(mark, ink);
        m_painter.restore();
    }

    void paintText(int row)
    {
        const Arc &arc = m_look.arcs[size_t(row)];
        if (arc.span == 0)
            return;
        const QColor ink = inkOn(colourOf(row));
        const QString text = piePercentText(m_look.shares[size_t(row)]);
        if (paintAcross(arc, text, ink) || paintAlongRadius(arc, text, ink))
            return;
        paintNarrowLock(arc, ink);
        paintBeside(arc, text, row == m_look.selected);
    }

    bool paintAcross(const Arc &arc, const QString &text, const QColor &ink)
    {
        if (widthAt(arc, middle) < fontPixels)
            return false;
        const QFontMetricsF metrics(m_font);
        const double lockRoom = arc.locked ? lockHeight + lockSpacing : 0;
        QRectF box(0, 0, metrics.horizontalAdvance(text), metrics.capHeight() + lockRoom);
        box.moveCenter(at(middle, middleAngle(arc)));
        if (!fits(box, arc))
            return false;
        if (arc.locked)
            paintLock({box.center().x(), box.top() + lockHeight / 2}, 1, ink);
        m_painter.setFont(m_font);
        m_painter.setPen(ink);
        m_painter.drawText(box.bottomLeft(), text);
        return true;
    }

    bool paintAlongRadius(const Arc &arc, const QString &text, const QColor &ink)
    {
        const QFontMetricsF metrics(m_narrowFont);
        const double height = metrics.capHeight();
        if (widthAt(arc, inner + inset) < height)
            return false;
        const double textLength = metrics.horizontalAdvance(text);
        const double length = textLength + (arc.locked ? lockWidth + lockSpacing : 0);
        if (length > outer - inner - 2 * inset || widthAt(arc, middle - length / 2) < height + textMargin)
            return false;

        const double degrees = middleAngle(arc) / 16 - 180;
        const bool leftHalf = std::cos(qDegreesToRadians(degrees)) < 0;
        m_painter.save();
        m_painter.rotate(leftHalf ? degrees + 180 : degrees);
        const double left = (leftHalf ? -middle : middle) - length / 2;
        m_painter.setFont(m_narrowFont);
        m_painter.setPen(ink);
        m_painter.drawText(QPointF(left, height / 2), text);
        if (arc.locked)
            paintLock({left + length - lockWidth / 2, 0}, 1, ink);
        m_painter.restore();
        return true;
    }

    void paintNarrowLock(const Arc &arc, const QColor &ink)
    {
        if (!arc.locked)
            return;
        const double radius = outer - inset - lockHeight / 2 - 1;
        const double width = std::min(lockWidth, widthAt(arc, radius) * 0.65);
        if (width >= smallestLock)
            paintLock(at(radius, middleAngle(arc)), width / lockWidth, ink);
    }

    /// Outside the ring, as near as the labels there allow; left out where there is no room.
    void paintBeside(const Arc &arc, const QString &text, bool selected)
    {
        const QFontMetricsF metrics(m_narrowFont);
        const QSizeF size(metrics.horizontalAdvance(text), metrics.capHeight() + 2);
        for (int step = 0; step < labelSteps * labelTiers; ++step) {
            const int shift = step / labelTiers * labelShift;
            const double radius = outer + labelDistance + step % labelTiers * labelTier;
            for (const int side : {-shift, shift}) {
                // The box touches the anchor with the point of its border that looks at the ring.
                const double angle = middleAngle(arc) + side;
                // A leader must not cut across the ring.
                if (radius * std::cos(qDegreesToRadians(shift / 16.0)) < outer + 2)
                    continue;
                const QPointF outwards = at(1, angle);
                QRectF box(QPointF(), size);
                box.moveCenter(outwards * radius
                               + QPointF(outwards.x() * size.width() / 2, outwards.y() * size.height() / 2));
                if (!m_area.contains(box) || isTaken(box))
                    continue;
                m_labels.push_back(box.adjusted(-2, -1, 2, 1));
                const double border = outer - (selected ? 0 : inset) + 1;
                paintLabel(at(border, middleAngle(arc)), at(radius - 2, angle), box, text, selected);
                return;
            }
        }
    }

    void paintLabel(const QPointF &from, const QPointF &to, const QRectF &box, const QString &text, bool selected)
    {
        const bool accented = selected && m_look.enabled;
        m_painter.setPen(QPen(QColor(accented ? accentColour : leaderColour), 1));
        m_painter.drawLine(from, to);
        m_painter.setFont(m_narrowFont);
        m_painter.setPen(QColor(accented ? accentColour : m_look.enabled ? labelInk : secondaryInk));
        m_painter.drawText(QPointF(box.left(), box.bottom() - 1), text);
    }

    void paintCaption()
    {
        m_painter.setFont(m_font);
        const QFontMetricsF metrics(m_font);
        const auto paintLine = [&](const QString &text, double top, QRgb ink) {
            // As wide as the hole is at the foot of the line.
            const double foot = top + captionHeight;
            const double width = 2 * std::sqrt(captionRadius * captionRadius - foot * foot);
            m_painter.setPen(QColor(ink));
            m_painter.drawText(QRectF(-width / 2, top, width, captionHeight), Qt::AlignCenter,
                               metrics.elidedText(text, Qt::ElideRight, width));
        };
        const double top = m_look.selected >= 0 ? captionTop : -captionHeight / 2;
        paintLine(m_look.title, top, m_look.selected >= 0 ? labelInk : secondaryInk);
        paintLine(m_look.detail, top + captionHeight, secondaryInk);
    }

    bool isTaken(const QRectF &box) const
    {
        return std::any_of(m_labels.cbegin(), m_labels.cend(),
                           [&box](const QRectF &label) { return label.intersects(box); });
    }

    QPainter &m_painter;
    const PieChartLook &m_look;
    QPoint m_centre;
    QRectF m_area; // the widget as seen from the centre
    QFont m_font;
    QFont m_narrowFont;
    std::vector<QRectF> m_labels;
};

} // namespace

QString pieNumberText(float share)
{
    const double tenths = std::round(double(share) * 10) / 10;
    const bool whole = tenths == std::floor(tenths);
    return QString::number(tenths, 'f', whole ? 0 : 1);
}

QString piePercentText(float share)
{
    return pieNumberText(share) + u'%';
}

void paintPieChart(QPainter &painter, const PieChartLook &look)
{
    Painting(painter, look).paint();
}
