#pragma once

#include "VelmoGuiExport.h"

#include <functional>

/// The services of the window system that the toolkit does not offer: one process-wide table of operations.
///
/// The table is made on first use, filled with those of the running system, and kept for the life of the process. An
/// operation may be replaced, by a test or by an application that knows better, or emptied: callers then go the way of
/// a failed call. Windows are given by their native handle (`HWND` on Windows, what `QWindow::winId` returns
/// elsewhere). GUI thread only.
class VELMO_GUI_EXPORT NativeWindowApi
{
public:
    /// A window of the system, of whatever program.
    using Handle = void *;

    /// The keys that can be asked for. Any other number is a key that is never down.
    enum Key : int {
        Escape = 0, ///< the Escape key
        Return = 1 ///< Return and Enter
    };

    /// The table; always the same one.
    static NativeWindowApi &instance();

    /// Whether the key is held down now. Never on systems where the toolkit cannot tell.
    std::function<bool(int key)> isKeyDown;
    /// The window that the user works in, of whatever program; null when none is known.
    std::function<Handle()> foregroundWindow;
    /// The rectangle, in the system's pixels, of the monitor nearest to the window. Output pointers may be null; they
    /// are left alone on failure, which returns false. On systems other than Windows it is that of the toolkit's
    /// screen, in logical pixels, and of its primary screen for the window of another program.
    std::function<bool(Handle window, int *x, int *y, int *width, int *height)> monitorRectOfWindow;
    /// Gives the system's own title bar of a window the dark look. The caller knows the system's version: before
    /// Windows 11 nothing is done, and on systems other than Windows it fails. Both are told on the standard error
    /// stream.
    std::function<void(Handle window, bool windows11OrLater)> setDarkTitleBar;
    /// Whether the desktop's settings let widgets move. Always on systems where only the toolkit's style may know.
    std::function<bool()> areAnimationsOn;

private:
    NativeWindowApi();
};
