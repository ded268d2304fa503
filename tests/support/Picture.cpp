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
