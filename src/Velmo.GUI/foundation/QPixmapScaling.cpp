#include "foundation/QPixmapScaling.h"

#include <QPixmap>

#include <cmath>

namespace {

constexpr double largestSide = 32767.0;

/// The length in device pixels, or 0 where no picture of that length can be made.
int devicePixels(double length, double devicePixelRatio)
{
    const double pixels = length * devicePixelRatio;
    return pixels >= 0.5 && pixels <= largestSide ? int(std::lround(pixels)) : 0;
}

QPixmap withRatio(QPixmap pixmap, double devicePixelRatio)
{
    pixmap.setDevicePixelRatio(devicePixelRatio);
    return pixmap;
}

/// Whether a side that follows from the other one by the aspect ratio can be made.
bool canFollow(int side, int other, int otherScaled)
{
    return otherScaled > 0 && double(side) * otherScaled / other <= largestSide;
}

} // namespace

QPixmap QPixmapScaling::scale(const QPixmap &pixmap, int width, int height, double devicePixelRatio)
{
    const QSize box(devicePixels(width, devicePixelRatio), devicePixels(height, devicePixelRatio));
    if (pixmap.isNull() || box.isEmpty())
        return {};
    return withRatio(pixmap.scaled(box, Qt::KeepAspectRatio, Qt::SmoothTransformation), devicePixelRatio);
}

QPixmap QPixmapScaling::scaleToWidth(const QPixmap &pixmap, int width, double devicePixelRatio)
{
    const int pixels = devicePixels(width, devicePixelRatio);
    if (pixmap.isNull() || !canFollow(pixmap.height(), pixmap.width(), pixels))
        return {};
    return withRatio(pixmap.scaledToWidth(pixels, Qt::SmoothTransformation), devicePixelRatio);
}

QPixmap QPixmapScaling::scaleToHeight(const QPixmap &pixmap, int height, double devicePixelRatio)
{
    const int pixels = devicePixels(height, devicePixelRatio);
    if (pixmap.isNull() || !canFollow(pixmap.width(), pixmap.height(), pixels))
        return {};
    return withRatio(pixmap.scaledToHeight(pixels, Qt::SmoothTransformation), devicePixelRatio);
}
