#pragma once

#include "VelmoGuiExport.h"

#include <QString>

class QColor;

/// Writes colours the way the library's style sheets write them.
class VELMO_GUI_EXPORT VelmoColor
{
public:
    /// "rgb(59, 59, 59)" for the colour with these components: decimal, without padding, in any locale. Alpha is left
    /// out; an invalid colour reads as black.
    static QString colorToSheet(const QColor &color);
};
