#pragma once

#include "VelmoGuiExport.h"

#include <QList>

/// The edge lengths of preview pictures that a panel offers, in logical pixels.
class VELMO_GUI_EXPORT OvixThumbnailSize
{
public:
    /// No preview pictures.
    static constexpr int None = 0;
    /// The smallest pictures.
    static constexpr int Small = 100;
    /// Pictures between the two.
    static constexpr int Medium = 150;
    /// The largest pictures.
    static constexpr int Large = 200;

    /// All of them, from none to the largest.
    static const QList<int> Sizes;
};
