#include "OwnWindow.h"

#include <windows.h>

namespace {

constexpr int steps = 100;
constexpr DWORD stepInMilliseconds = 20;

/// Handles messages until the condition holds, for two seconds at most.
template <class Condition> void handleMessagesUntil(Condition holds)
{
    for (int step = 0; step < steps && !holds(); ++step) {
        MsgWaitForMultipleObjects(0, nullptr, FALSE, stepInMilliseconds, QS_ALLINPUT);
        MSG message;
        while (PeekMessageW(&message, nullptr, 0, 0, PM_REMOVE)) {
            TranslateMessage(&message);
            DispatchMessageW(&message);
        }
    }
}

} // namespace

class OwnWindow::Private
{
public:
    Private()
    {
        WNDCLASSW type = {};
        type.lpfnWndProc = answer;
        type.hInstance = GetModuleHandleW(nullptr);
        type.lpszClassName = L"OwnWindow";
        RegisterClassW(&type);
        window = CreateWindowExW(0, type.lpszClassName, L"Own window", WS_OVERLAPPEDWINDOW, 40, 50, 300, 200, nullptr,
                                 nullptr, type.hInstance, nullptr);
        ShowWindow(window, SW_SHOW);
        SetForegroundWindow(window);
        handleMessagesUntil([this] { return GetForegroundWindow() == window; });
    }

    ~Private() { DestroyWindow(window); }

    void send(Key key, DWORD flags, UINT awaited)
    {
        INPUT input = {};
        input.type = INPUT_KEYBOARD;
        input.ki.wVk = key == Escape ? VK_ESCAPE : VK_RETURN;
        input.ki.dwFlags = flags;
        lastKeyMessage = 0;
        SendInput(1, &input, sizeof(input));
        handleMessagesUntil([awaited] { return lastKeyMessage == awaited; });
    }

    HWND window = nullptr;

private:
    static LRESULT CALLBACK answer(HWND window, UINT message, WPARAM first, LPARAM second)
    {
        if (message == WM_KEYDOWN || message == WM_KEYUP)
            lastKeyMessage = message;
        return DefWindowProcW(window, message, first, second);
    }

    inline static UINT lastKeyMessage = 0;
};

const bool OwnWindow::tellsHeldKeys = true;
const bool OwnWindow::takesDarkTitleBar = true;
const bool OwnWindow::tellsAnimations = true;

OwnWindow::OwnWindow() : d(std::make_unique<Private>())
{ }

OwnWindow::~OwnWindow() = default;

void *OwnWindow::handle() const
{
    return d->window;
}

OwnWindow::Screen OwnWindow::screen() const
{
    return {0, 0, GetSystemMetrics(SM_CXSCREEN), GetSystemMetrics(SM_CYSCREEN)};
}

void OwnWindow::press(Key key)
{
    d->send(key, 0, WM_KEYDOWN);
}

void OwnWindow::release(Key key)
{
    d->send(key, KEYEVENTF_KEYUP, WM_KEYUP);
}

void OwnWindow::setAnimations(bool on)
{
    SystemParametersInfoW(SPI_SETCLIENTAREAANIMATION, 0, reinterpret_cast<void *>(INT_PTR(on)), 0);
}
