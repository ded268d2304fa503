#pragma once

#include <QRect>

class QPainter;
class QWidget;

/// What the steps of the tour have in common.
namespace TourGround {

/// Darkens the whole of @p overlay except for @p spot, which gets a ring, and gives the texts a ground of their own
/// where they lie on the spot. An empty spot darkens everything.
void paint(QPainter *painter, const QWidget *overlay, const QRect &spot);

/// Where the texts and buttons of the tour are, in its coordinates; empty without any.
QRect controlsOf(const QWidget *overlay);

} // namespace TourGround
