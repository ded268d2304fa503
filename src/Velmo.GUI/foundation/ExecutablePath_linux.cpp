#include "foundation/ExecutablePath.h"

#include <system_error>

std::filesystem::path executablePath()
{
    std::error_code error;
    return std::filesystem::read_symlink("/proc/self/exe", error);
}
