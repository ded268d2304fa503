// Stands in for the system's desktop window manager: takes the dark title bar of a window, as it has to be asked for,
// and refuses everything else. Wine's own takes anything.

#include <windows.h>

static HRESULT WINAPI judge(HWND window, DWORD attribute, const void *value, DWORD size)
{
    if (!IsWindow(window))
        return E_HANDLE;
    return attribute == 20 && size == 4 && *static_cast<const BOOL *>(value) == TRUE ? S_OK : E_INVALIDARG;
}

// What a call of an imported function goes through.
extern "C" {
decltype(&judge) __imp_DwmSetWindowAttribute = judge;
}
