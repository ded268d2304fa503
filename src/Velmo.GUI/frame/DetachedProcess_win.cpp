#include "frame/DetachedProcess.h"

#include "frame/WindowsCommandLine.h"
#include "frame/WindowsText.h"

bool startDetached(const std::string &program, const std::string &argument)
{
    const std::wstring path = windowsText(program, true);
    const std::wstring given = windowsText(argument, true);
    if (path.empty() || given.empty())
        return false;
    // The name of the program is read by a rule of its own, which knows no backslash.
    std::wstring commandLine = L'"' + path + L"\" " + quotedArgument(given);
    STARTUPINFOW startup = {};
    startup.cb = sizeof(startup);
    PROCESS_INFORMATION process = {};
    if (!CreateProcessW(path.c_str(), commandLine.data(), nullptr, nullptr, FALSE,
                        DETACHED_PROCESS | CREATE_NEW_PROCESS_GROUP, nullptr, nullptr, &startup, &process))
        return false;
    CloseHandle(process.hThread);
    CloseHandle(process.hProcess);
    return true;
}
