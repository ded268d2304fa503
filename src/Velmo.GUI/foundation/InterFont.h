#pragma once

#include <QFont>

/// The font of the look, in a size of logical pixels.
inline QFont interFont(int pixelSize)
{
    QFont font(QStringLiteral("Inter"));
    font.setPixelSize(pixelSize);
    return font;
}
