#pragma once

#include "VelmoGuiExport.h"

#include <QString>

/// Ready-made style-sheet texts for picture buttons and drop lists, and the width of a panel title.
///
/// Every function is pure: it builds a new text from its arguments. Picture paths are put in as they are, so they have
/// to be valid inside `url(...)`; resource paths such as ":/Windows/Close" are.
class VELMO_GUI_EXPORT VelmoStyle
{
public:
    /// A grey button made from a `QLabel`: rounded, picture centred, lighter under the pointer. With a non-empty
    /// @p disabledImage the label shows that picture while disabled.
    static QString regularButtonGrayStyle(QString image, QString disabledImage);

    /// A button in the accent colour (blue, whatever the name says), with neither a hover nor a disabled look.
    static QString regularButtonYellowStyle(QString image);

    /// A square grey label with a centred picture, without a hover look.
    static QString labelGrayStyleAndImage(QString image);

    /// Width of @p text in logical pixels in the panel title font, "Inter" at 11 pixels. 0 for an empty text.
    static int styleDockTextWidth(QString text);

    /// A drop list (`QListWidget`) whose left and right corners are rounded independently of each other.
    static QString styleDragDropList(bool roundLeft, bool roundRight);
};
