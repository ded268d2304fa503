#include "frame/NativeWindowBackend.h"

#include <QGuiApplication>
#include <QScreen>
#include <QWindow>

#include <cstdio>

namespace {

void *handleOf(const QWindow *window)
{
    return reinterpret_cast<void *>(window->winId());
}

/// The program's own window of this handle that is already on the system; asking others would create them.
QWindow *windowOf(void *handle)
{
    const QWindowList windows = QGuiApplication::allWindows();
    for (QWindow *window : windows) {
        if (window->handle() && handleOf(window) == handle)
            return window;
    }
    return nullptr;
}

void set(int *target, int value)
{
    if (target)
        *target = value;
}

} // namespace

bool NativeWindowBackend::isKeyDown(int)
{
    return false;
}

void *NativeWindowBackend::foregroundWindow()
{
    const QWindow *window = QGuiApplication::focusWindow();
    return window ? handleOf(window) : nullptr;
}

bool NativeWindowBackend::monitorRectOfWindow(void *handle, int *x, int *y, int *width, int *height)
{
    const QWindow *window = windowOf(handle);
    const QScreen *screen = window ? window->screen() : QGuiApplication::primaryScreen();
    if (!screen)
        return false;
    const QRect rect = screen->geometry();
    set(x, rect.x());
    set(y, rect.y());
    set(width, rect.width());
    set(height, rect.height());
    return true;
}

void NativeWindowBackend::setDarkTitleBar(void *, bool windows11OrLater)
{
    std::fputs(windows11OrLater ? darkTitleBarFailed : tooOldForDarkTitleBar, stderr);
}

bool NativeWindowBackend::areAnimationsOn()
{
    return true;
}
