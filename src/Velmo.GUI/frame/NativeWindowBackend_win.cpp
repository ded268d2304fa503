#include "frame/NativeWindowBackend.h"

#include <windows.h>

#include <dwmapi.h>

#include <cstdio>

namespace {

constexpr DWORD useImmersiveDarkMode = 20;

void set(int *target, LONG value)
{
    if (target)
        *target = static_cast<int>(value);
}

} // namespace

bool NativeWindowBackend::isKeyDown(int key)
{
    const int virtualKey = key == 0 ? VK_ESCAPE : key == 1 ? VK_RETURN : 0;
    return GetKeyState(virtualKey) < 0;
}

void *NativeWindowBackend::foregroundWindow()
{
    return GetForegroundWindow();
}

bool NativeWindowBackend::monitorRectOfWindow(void *window, int *x, int *y, int *width, int *height)
{
    const HMONITOR monitor = MonitorFromWindow(static_cast<HWND>(window), MONITOR_DEFAULTTONEAREST);
    MONITORINFO info = {};
    info.cbSize = sizeof(info);
    if (!monitor || !GetMonitorInfoW(monitor, &info))
        return false;
    set(x, info.rcMonitor.left);
    set(y, info.rcMonitor.top);
    set(width, info.rcMonitor.right - info.rcMonitor.left);
    set(height, info.rcMonitor.bottom - info.rcMonitor.top);
    return true;
}

void NativeWindowBackend::setDarkTitleBar(void *window, bool windows11OrLater)
{
    if (!windows11OrLater) {
        std::fputs(tooOldForDarkTitleBar, stderr);
        return;
    }
    const BOOL dark = TRUE;
    if (FAILED(DwmSetWindowAttribute(static_cast<HWND>(window), useImmersiveDarkMode, &dark, sizeof(dark))))
        std::fputs(darkTitleBarFailed, stderr);
}

bool NativeWindowBackend::areAnimationsOn()
{
    BOOL on = TRUE;
    return !SystemParametersInfoW(SPI_GETCLIENTAREAANIMATION, 0, &on, 0) || on;
}
