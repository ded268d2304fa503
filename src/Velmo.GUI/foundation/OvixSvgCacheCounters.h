#pragma once

#include "VelmoGuiExport.h"

#include <QtGlobal>

/// How much the icon cache holds at this moment, for pages that tell an application's developers. From the GUI thread
/// alone, as the cache itself; before the first icon everything is 0.
class VELMO_GUI_EXPORT OvixSvgCacheCounters
{
public:
    /// Pictures kept, null ones included.
    static qsizetype pixmaps();
    /// SVG files kept, bad ones included.
    static qsizetype documents();
    /// How many times a file was handed to the SVG parser.
    static qsizetype loads();
    /// Memory of the pictures' pixels, in bytes.
    static qint64 bytes();
};
