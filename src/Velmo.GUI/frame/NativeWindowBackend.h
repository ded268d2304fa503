#pragma once

/// The operations of `NativeWindowApi` on the running system, one source file a system.
namespace NativeWindowBackend {

bool isKeyDown(int key);
void *foregroundWindow();
bool monitorRectOfWindow(void *window, int *x, int *y, int *width, int *height);
void setDarkTitleBar(void *window, bool windows11OrLater);
bool areAnimationsOn();

constexpr char tooOldForDarkTitleBar[] = "Windows version is less than 11. Dark mode title bar not applied.\n";
constexpr char darkTitleBarFailed[] = "Failed to set dark mode title bar.\n";

} // namespace NativeWindowBackend
