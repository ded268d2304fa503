#include <OvixSvgLabel.h>
#include <VelmoColor.h>
#include <VelmoVersion.h>

#include "foundation/OvixSvgKey.h"
#include "foundation/OvixSvgRenderer.h"

#include <QApplication>
#include <QColor>
#include <QImage>
#include <QPixmap>

#include <cstdio>

// Every pixel of a picture that was not found is transparent.
static bool isDrawn(const QImage &image)
{
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x) {
            if (qAlpha(image.pixel(x, y)) > 0)
                return true;
        }
    }
    return false;
}

int main(int argc, char **argv)
{
    QApplication application(argc, argv);
    OvixSvgLabel label;
    label.setFilename(QStringLiteral(":/Windows/Close"));
    if (!label.hasFilenames() || VelmoVersion::current() < VelmoVersion(QStringLiteral("2.0.0")))
        return 1;

    OvixSvgKey key;
    key.size = QSize(24, 24);
    key.layers = {{QStringLiteral(":/Windows/Close"), QRect(), {}}};
    const QPixmap icon = OvixSvgRenderer::get(key);
    std::printf("icon %d x %d, %s; accent %s\n", icon.width(), icon.height(),
                isDrawn(icon.toImage()) ? "drawn" : "empty",
                qPrintable(VelmoColor::colorToSheet(QColor(29, 157, 210))));
    return 0;
}
