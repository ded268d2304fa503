#include "CrashHost.h"

#include <windows.h>

#include <shellapi.h>

namespace {

constexpr int steps = 500;
constexpr DWORD stepInMilliseconds = 20;

std::string utf8(const std::wstring &text)
{
    const int length = static_cast<int>(text.size());
    std::string bytes(text.size() * 3, '\0');
    const int size = WideCharToMultiByte(CP_UTF8, 0, text.data(), length, bytes.data(), static_cast<int>(bytes.size()),
                                         nullptr, nullptr);
    bytes.resize(static_cast<size_t>(size));
    return bytes;
}

/// Every text shown in the window, one behind the other.
BOOL CALLBACK addText(HWND control, LPARAM texts)
{
    wchar_t text[20000];
    const LRESULT length = SendMessageW(control, WM_GETTEXT, std::size(text), reinterpret_cast<LPARAM>(text));
    *reinterpret_cast<std::string *>(texts) += utf8(std::wstring(text, static_cast<size_t>(length))) + "|";
    return TRUE;
}

void close(HWND window, const std::string &way)
{
    const HWND field = FindWindowExW(window, nullptr, L"EDIT", nullptr);
    if (way == "system")
        PostMessageW(window, WM_CLOSE, 0, 0);
    else if (way == "button")
        PostMessageW(FindWindowExW(window, nullptr, L"BUTTON", nullptr), BM_CLICK, 0, 0);
    else
        PostMessageW(field, WM_KEYDOWN, way == "Escape" ? VK_ESCAPE : VK_RETURN, 0);
}

} // namespace

std::vector<std::string> CrashHost::arguments(int, char **)
{
    std::vector<std::string> all = readCommandLine(GetCommandLineW());
    all.erase(all.begin());
    return all;
}

std::vector<std::string> CrashHost::readCommandLine(const std::wstring &commandLine)
{
    int count = 0;
    wchar_t **texts = CommandLineToArgvW(commandLine.c_str(), &count);
    std::vector<std::string> read;
    for (int i = 0; i < count; ++i)
        read.push_back(utf8(texts[i]));
    LocalFree(texts);
    return read;
}

std::vector<std::string> CrashHost::oddFileNames()
{
    return {"a 'name' & %PATH% \xC3\xBC \xE2\x80\x93 \xE6\x9D\xB1", "^caret (1)!", "-n"};
}

std::string CrashHost::impossiblePath()
{
    return "\xFF.txt";
}

void CrashHost::makeInheritanceLikely()
{
    SetHandleInformation(GetStdHandle(STD_OUTPUT_HANDLE), HANDLE_FLAG_INHERIT, HANDLE_FLAG_INHERIT);
    SetHandleInformation(GetStdHandle(STD_ERROR_HANDLE), HANDLE_FLAG_INHERIT, HANDLE_FLAG_INHERIT);
}

std::string CrashHost::sharedWithStarter()
{
    return GetConsoleWindow() ? "console" : "";
}

bool CrashHost::hasChildren()
{
    return false; // processes do not belong to each other here
}

std::vector<std::string> CrashHost::waysToClose()
{
    return {"system", "button", "Escape", "Return"};
}

std::thread CrashHost::closeErrorWindow(const std::string &title, const std::string &way, std::string &shownText)
{
    return std::thread([=, &shownText] {
        const std::wstring name(title.begin(), title.end());
        for (int step = 0; step < steps; ++step) {
            const HWND window = FindWindowW(nullptr, name.c_str());
            if (window && IsWindowVisible(window)) {
                EnumChildWindows(window, addText, reinterpret_cast<LPARAM>(&shownText));
                close(window, way);
                return;
            }
            Sleep(stepInMilliseconds);
        }
        std::_Exit(3); // or this would last for ever
    });
}
