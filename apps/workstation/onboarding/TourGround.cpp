#include "onboarding/TourGround.h"

#include "look/Palette.h"

#include <QAbstractButton>
#include <QLabel>
#include <QPainter>
#include <QPainterPath>
#include <QWidget>

namespace {

constexpr QColor shade(0, 0, 0, 200);
constexpr QColor plate(28, 28, 28, 235);
constexpr int radius = 6;
constexpr int ringWidth = 2;
constexpr int plateMargin = 24;

/// A label may be far wider than its text.
QRect usedBy(const QWidget *widget)
{
    QRect used(QPoint(), widget->size().boundedTo(widget->sizeHint()));
    used.moveCenter(widget->rect().center());
    return used;
}

} // namespace

void TourGround::paint(QPainter *painter, const QWidget *overlay, const QRect &spot)
{
    QPainterPath dark;
    dark.addRect(overlay->rect());
    if (spot.isEmpty()) {
        painter->fillPath(dark, shade);
        return;
    }
    dark.addRoundedRect(spot, radius, radius);
    painter->fillPath(dark, shade);
    painter->setPen(QPen(Palette::accent, ringWidth));
    painter->drawRoundedRect(spot, radius, radius);

    const QRect controls = controlsOf(overlay);
    if (!controls.intersects(spot))
        return;
    painter->setPen(Qt::NoPen);
    painter->setBrush(plate);
    painter->drawRoundedRect(controls.marginsAdded({plateMargin, plateMargin, plateMargin, plateMargin}), radius,
                             radius);
}

QRect TourGround::controlsOf(const QWidget *overlay)
{
    QRect controls;
    for (const QWidget *widget : overlay->findChildren<QWidget *>()) {
        const bool isControl = qobject_cast<const QLabel *>(widget) || qobject_cast<const QAbstractButton *>(widget);
        if (isControl && widget->isVisibleTo(overlay))
            controls |= usedBy(widget).translated(widget->mapTo(overlay, QPoint()));
    }
    return controls;
}
