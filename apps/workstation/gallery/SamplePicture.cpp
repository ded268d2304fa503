#include "gallery/SamplePicture.h"

#include "look/Palette.h"

#include <QPainter>
#include <QPainterPath>

#include <cmath>

namespace {

constexpr int people = 90;

} // namespace

QPixmap SamplePicture::draw(QSize size, qreal devicePixelRatio)
{
    QPixmap picture(size * devicePixelRatio);
    picture.setDevicePixelRatio(devicePixelRatio);
    picture.fill(QColor(65, 84, 92));
    QPainter painter(&picture);
    painter.setRenderHint(QPainter::Antialiasing);
    // Drawn on a field of 300 × 200, whatever the size.
    painter.scale(size.width() / 300.0, size.height() / 200.0);

    painter.setPen(Qt::NoPen);
    painter.setBrush(Palette::window);
    for (const QRectF &house :
         {QRectF(0, 0, 110, 50), QRectF(190, 0, 110, 70), QRectF(0, 150, 80, 50), QRectF(220, 140, 80, 60)})
        painter.drawRect(house);
    painter.setBrush(Palette::warning);
    painter.drawEllipse(QPointF(150, 100), 16, 16);

    // A spiral crowd round the middle.
    for (int i = 1; i <= people; ++i) {
        const double angle = i * 2.4;
        const double radius = 22 + 8 * std::sqrt(i);
        painter.setBrush(i % 4 == 0 ? Palette::accent : Palette::text);
        painter.drawEllipse(QPointF(150 + radius * std::cos(angle), 100 + 0.8 * radius * std::sin(angle)), 2.2, 2.2);
    }

    painter.setBrush(Qt::NoBrush);
    painter.setPen(QPen(Palette::accent, 2));
    painter.drawRect(QRectF(1, 1, 298, 198));
    return picture;
}
