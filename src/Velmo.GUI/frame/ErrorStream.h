#pragma once

#include <cstdio>
#include <string>

/// Writes "title: text" and the end of a line to the standard error stream; false when it takes no more.
inline bool writeToErrorStream(const std::string &title, const std::string &text)
{
    const std::string line = title + (title.empty() ? "" : ": ") + text + '\n';
    return std::fwrite(line.data(), 1, line.size(), stderr) == line.size() && std::fflush(stderr) == 0;
}
