#include "frame/NativeErrorWindow.h"

#include "frame/ErrorStream.h"
#include "frame/WindowsText.h"

namespace {

constexpr wchar_t windowClass[] = L"VelmoNativeErrorWindow";

// At 96 dots an inch.
constexpr int windowWidth = 520;
constexpr int windowHeight = 260;
constexpr int margin = 12;
constexpr int buttonWidth = 96;
constexpr int buttonHeight = 28;

constexpr int textId = 100;
constexpr int closeId = 101;

struct ErrorWindow
{
    std::wstring title;
    std::wstring text;
    std::wstring closeText;
    bool shown = false;
};

/// The text with the line ends that the system's text fields show.
std::wstring fieldText(const std::string &utf8)
{
    std::wstring lines;
    for (const wchar_t character : windowsText(utf8, false)) {
        if (character == L'\n')
            lines += L"\r\n";
        else if (character != L'\r')
            lines += character == L'\0' ? L' ' : character;
    }
    return lines;
}

/// A service has no screen: nobody would ever close its windows.
bool hasUser()
{
    USEROBJECTFLAGS flags = {};
    return GetUserObjectInformationW(GetProcessWindowStation(), UOI_FLAGS, &flags, sizeof(flags), nullptr)
        && (flags.dwFlags & WSF_VISIBLE);
}

int scaled(int length)
{
    const HDC screen = GetDC(nullptr);
    const int dots = GetDeviceCaps(screen, LOGPIXELSX);
    ReleaseDC(nullptr, screen);
    return MulDiv(length, dots, 96);
}

void placeControls(HWND window)
{
    RECT area;
    GetClientRect(window, &area);
    const int gap = scaled(margin);
    const int width = scaled(buttonWidth);
    const int height = scaled(buttonHeight);
    MoveWindow(GetDlgItem(window, textId), gap, gap, area.right - 2 * gap, area.bottom - 3 * gap - height, TRUE);
    MoveWindow(GetDlgItem(window, closeId), area.right - gap - width, area.bottom - gap - height, width, height, TRUE);
}

LRESULT CALLBACK answer(HWND window, UINT message, WPARAM first, LPARAM second)
{
    switch (message) {
    case WM_SIZE:
        placeControls(window);
        return 0;
    case WM_SETFOCUS:
        SetFocus(GetDlgItem(window, closeId));
        return 0;
    case WM_NEXTDLGCTL: // the text field asks for it on Tab
        SetFocus(LOWORD(second) ? reinterpret_cast<HWND>(first) : GetNextDlgTabItem(window, GetFocus(), first != 0));
        return 0;
    case WM_COMMAND:
        if (LOWORD(first) == closeId)
            DestroyWindow(window);
        return 0;
    case WM_DESTROY:
        PostQuitMessage(0);
        return 0;
    default:
        return DefWindowProcW(window, message, first, second);
    }
}

HWND createWindow(HINSTANCE instance, const ErrorWindow &content)
{
    WNDCLASSW type = {};
    type.lpfnWndProc = answer;
    type.hInstance = instance;
    type.lpszClassName = windowClass;
    type.hIcon = LoadIcon(nullptr, IDI_ERROR);
    type.hCursor = LoadCursor(nullptr, IDC_ARROW);
    type.hbrBackground = reinterpret_cast<HBRUSH>(static_cast<INT_PTR>(COLOR_BTNFACE + 1));
    RegisterClassW(&type); // another thread may have done so

    RECT screen = {};
    SystemParametersInfoW(SPI_GETWORKAREA, 0, &screen, 0);
    const int width = scaled(windowWidth);
    const int height = scaled(windowHeight);
    return CreateWindowExW(WS_EX_TOPMOST, windowClass, content.title.c_str(), WS_OVERLAPPEDWINDOW,
                           (screen.left + screen.right - width) / 2, (screen.top + screen.bottom - height) / 2, width,
                           height, nullptr, nullptr, instance, nullptr);
}

void addControl(HWND window, const wchar_t *type, int id, const std::wstring &text, DWORD style, HFONT font)
{
    const HWND control = CreateWindowExW(0, type, text.c_str(), WS_CHILD | WS_VISIBLE | WS_TABSTOP | style, 0, 0, 0, 0,
                                         window, reinterpret_cast<HMENU>(static_cast<INT_PTR>(id)), nullptr, nullptr);
    SendMessageW(control, WM_SETFONT, reinterpret_cast<WPARAM>(font), FALSE);
}

/// The window has a thread of its own, so that nothing else of the failed program is called.
DWORD WINAPI run(void *parameter)
{
    auto &content = *static_cast<ErrorWindow *>(parameter);
    const HINSTANCE instance = GetModuleHandleW(nullptr);
    const HWND window = createWindow(instance, content);
    if (!window)
        return 0;

    NONCLIENTMETRICSW metrics = {};
    metrics.cbSize = sizeof(metrics);
    SystemParametersInfoW(SPI_GETNONCLIENTMETRICS, metrics.cbSize, &metrics, 0);
    const HFONT font = CreateFontIndirectW(&metrics.lfMessageFont);
    addControl(window, L"EDIT", textId, content.text, ES_MULTILINE | ES_READONLY | WS_VSCROLL | WS_BORDER, font);
    addControl(window, L"BUTTON", closeId, content.closeText, BS_DEFPUSHBUTTON, font);
    placeControls(window);
    ShowWindow(window, SW_SHOWNORMAL);
    SetForegroundWindow(window);
    content.shown = true;

    MSG message;
    while (GetMessageW(&message, nullptr, 0, 0) > 0) {
        // The text field keeps these two keys to itself outside of dialogs.
        if (message.message == WM_KEYDOWN && (message.wParam == VK_ESCAPE || message.wParam == VK_RETURN)) {
            DestroyWindow(window);
        } else if (!IsDialogMessageW(window, &message)) {
            TranslateMessage(&message);
            DispatchMessageW(&message);
        }
    }
    DeleteObject(font);
    UnregisterClassW(windowClass, instance); // stays while another thread shows one
    return 0;
}

} // namespace

bool NativeErrorWindow::show(const std::string &title, const std::string &text, const std::string &closeText)
{
    ErrorWindow content{windowsText(title, false), fieldText(text), windowsText(closeText, false)};
    if (const HANDLE thread = hasUser() ? CreateThread(nullptr, 0, run, &content, 0, nullptr) : nullptr) {
        WaitForSingleObject(thread, INFINITE);
        CloseHandle(thread);
    }
    return content.shown || writeToErrorStream(title, text);
}
