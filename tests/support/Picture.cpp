#include "support/Picture.h"

#include <QWidget>

QImage Picture::of(QWidget *widget, qreal scale)
{
    QImage image(widget->size() * scale, QImage::Format_ARGB32_Premultiplied);
    image.setDevicePixelRatio(scale);
    image.fill(Qt::transparent);
    widget->render(&image, QPoint(), QRegion(), QWidget::DrawChildren);
    return image;
}

QColor Picture::colourAt(QWidget *widget, QPoint point, qreal scale)
{
    return of(widget, scale).pixelColor(point * scale);
}

QRect Picture::drawnArea(const QImage &image)
{
    QRect area;
    for (int y = 0; y < image.height(); ++y)
        for (int x = 0; x < image.width(); ++x)
            if (image.pixelColor(x, y).alpha() > 0)
                area |= QRect(x, y, 1, 1);
    return area;
}
