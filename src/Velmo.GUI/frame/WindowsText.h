#pragma once

#include <windows.h>

#include <string>

/// The text in UTF-16. Empty when it is too long or, with @p strict, is no UTF-8; otherwise what is broken is replaced.
inline std::wstring windowsText(const std::string &utf8, bool strict)
{
    const DWORD flags = strict ? MB_ERR_INVALID_CHARS : 0;
    const int size = static_cast<int>(utf8.size());
    const int length = MultiByteToWideChar(CP_UTF8, flags, utf8.data(), size, nullptr, 0);
    std::wstring text(length > 0 ? static_cast<size_t>(length) : 0, L'\0');
    if (!text.empty())
        MultiByteToWideChar(CP_UTF8, flags, utf8.data(), size, text.data(), length);
    return text;
}
