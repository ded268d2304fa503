#include "frame/CrashReport.h"

#include "frame/DetachedProcess.h"

#include <atomic>
#include <exception>
#include <filesystem>
#include <system_error>

namespace {

/// Null before a path is registered: a signal handler may ask, and has to find a whole path or none.
std::atomic<const std::string *> registeredFile = nullptr;

/// The system would read such a text as another one.
bool isPath(const std::string &text)
{
    return !text.empty() && text.find('\0') == std::string::npos;
}

/// Empty when there cannot be such a file.
std::filesystem::path fullPath(const std::string &path)
{
    std::error_code error;
    const std::filesystem::path full = std::filesystem::absolute(std::u8string(path.begin(), path.end()), error);
    if (error)
        return {};
    const std::filesystem::file_type type = std::filesystem::status(full, error).type();
    const bool canBeFile = type == std::filesystem::file_type::regular || type == std::filesystem::file_type::not_found;
    return canBeFile && full.has_filename() ? full : std::filesystem::path();
}

} // namespace

bool CrashReport::registerFile(const std::string &path)
{
    try {
        const std::u8string full = isPath(path) ? fullPath(path).u8string() : std::u8string();
        if (full.empty())
            return false;
        delete registeredFile.exchange(new std::string(full.begin(), full.end()));
        return true;
    } catch (const std::exception &) { // text that is no UTF-8, on systems that keep paths in another encoding
        return false;
    }
}

std::string CrashReport::file()
{
    const std::string *path = registeredFile;
    return path ? *path : std::string();
}

bool CrashReport::startProcess(const std::string &program)
{
    const std::string *path = registeredFile;
    return path && isPath(program) && startDetached(program, *path);
}
