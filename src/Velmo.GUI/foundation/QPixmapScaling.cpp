#include "foundation/QPixmapScaling.h"

#include <QPixmap>

#include <algorithm>
#include <cmath>
#include <limits>

namespace {

constexpr int largestSide = 32767;

/// The length in device pixels, or 0 where there is no such length.
int devicePixels(double length, double devicePixelRatio)
{
    const double pixels = length * devicePixelRatio;
    return pixels >= 0.5 && pixels <= std::numeric_limits<int>::max() ? int(std::lround(pixels)) : 0;
}

QPixmap withRatio(QPixmap pixmap, double devicePixelRatio)
{
    pixmap.setDevicePixelRatio(devicePixelRatio);
    return pixmap;
}

/// Whether a picture can be made that has one side scaled to @p pixels and the other one by the same factor.
bool canScale(int side, int pixels, int other)
{
    return pixels > 0 && pixels <= largestSide && double(other) * pixels / side <= largestSide;
}

} // namespace

QPixmap QPixmapScaling::scale(const QPixmap &pixmap, int width, int height, double devicePixelRatio)
{
    const QSize box(devicePixels(width, devicePixelRatio), devicePixels(height, devicePixelRatio));
    if (pixmap.isNull() || box.isEmpty())
        return {};
    // A box may be boundless to one side; only what fits into it has to be a possible picture.
    const QSize fitted = pixmap.size().scaled(box, Qt::KeepAspectRatio);
    if (std::max(fitted.width(), fitted.height()) > largestSide)
        return {};
    return withRatio(pixmap.scaled(box, Qt::KeepAspectRatio, Qt::SmoothTransformation), devicePixelRatio);
}

QPixmap QPixmapScaling::scaleToWidth(const QPixmap &pixmap, int width, double devicePixelRatio)
{
    const int pixels = devicePixels(width, devicePixelRatio);
    if (pixmap.isNull() || !canScale(pixmap.width(), pixels, pixmap.height()))
        return {};
    return withRatio(pixmap.scaledToWidth(pixels, Qt::SmoothTransformation), devicePixelRatio);
}

QPixmap QPixmapScaling::scaleToHeight(const QPixmap &pixmap, int height, double devicePixelRatio)
{
    const int pixels = devicePixels(height, devicePixelRatio);
    if (pixmap.isNull() || !canScale(pixmap.height(), pixels, pixmap.width()))
        return {};
    return withRatio(pixmap.scaledToHeight(pixels, Qt::SmoothTransformation), devicePixelRatio);
}
