#include "foundation/ExecutablePath.h"

#include <windows.h>

#include <string>

std::filesystem::path executablePath()
{
    // The call cuts a path that does not fit and then reports the whole buffer as used.
    std::wstring buffer(MAX_PATH, L'\0');
    for (;;) {
        const DWORD length = GetModuleFileNameW(nullptr, buffer.data(), static_cast<DWORD>(buffer.size()));
        if (length == 0)
            return {};
        if (length < buffer.size()) {
            buffer.resize(length);
            return buffer;
        }
        buffer.resize(buffer.size() * 2);
    }
}
