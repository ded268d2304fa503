#pragma once

#include <filesystem>

/// Full path of the running executable, from the operating system; empty when it does not tell. Works before any
/// application object exists.
std::filesystem::path executablePath();
