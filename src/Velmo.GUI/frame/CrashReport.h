#pragma once

#include "VelmoGuiExport.h"

#include <string>

/// Where this process leaves the report of its crash, and the start of the program that takes care of it. Works without
/// the toolkit. Paths are UTF-8.
class VELMO_GUI_EXPORT CrashReport
{
public:
    CrashReport() = delete;

    /// Keeps the path of the report for the life of the process. A relative one is completed now, so that the current
    /// folder may change afterwards. The file need not exist; this neither makes nor opens it.
    ///
    /// False, and the path before stays, for a path that no file can have or that is something else than a file. Call
    /// it early and from one thread.
    static bool registerFile(const std::string &path);
    /// The full path, empty before one is registered.
    static std::string file();

    /// Starts @p program with the path of the report as its only argument, and leaves it alone: it outlives this
    /// process and shares neither its open files and streams nor its terminal. @p program is the path of an executable
    /// file, not a name to search for.
    ///
    /// False without a registered file, and when the program cannot be started. On systems other than Windows nothing
    /// is allocated, so that a signal handler may call it.
    static bool startProcess(const std::string &program);
};
