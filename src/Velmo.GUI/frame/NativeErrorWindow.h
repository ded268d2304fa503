#pragma once

#include "VelmoGuiExport.h"

#include <string>

/// Tells the user of a failure by the system's own means alone: before the toolkit is up, after it has gone, or when it
/// is what has failed.
class VELMO_GUI_EXPORT NativeErrorWindow
{
public:
    NativeErrorWindow() = delete;

    /// Shows the text in a plain window above all others and returns when the user has closed it. Texts are UTF-8; a
    /// long one can be scrolled, and copied.
    ///
    /// May be called from any thread; the other windows of that thread get no events meanwhile. Where there is nobody
    /// to close a window (a service, or a system other than Windows) title and text are written to the standard error
    /// stream at once. False when they could be told in neither way.
    static bool show(const std::string &title, const std::string &text, const std::string &closeText = "Close");
};
