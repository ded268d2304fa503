#pragma once

#include "foundation/OvixSvgRenderer.h"

/// How much the icon cache holds, for the gallery and the tests.
class OvixSvgCacheCounters
{
public:
    /// Pictures kept, null ones included.
    VELMO_GUI_EXPORT static qsizetype pixmaps();
    /// SVG files kept, bad ones included.
    VELMO_GUI_EXPORT static qsizetype documents();
    /// How many times a file was handed to the SVG parser.
    VELMO_GUI_EXPORT static qsizetype loads();
    /// Memory of the pictures' pixels.
    VELMO_GUI_EXPORT static qint64 bytes();
};
