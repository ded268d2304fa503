#pragma once

#include <string>
#include <thread>
#include <vector>

/// The system that the crash helper is tested on.
namespace CrashHost {

/// The arguments of this process in UTF-8, behind the program's name.
std::vector<std::string> arguments(int argc, char **argv);
/// The command line as the system reads it; none where there are no command lines.
std::vector<std::string> readCommandLine(const std::wstring &commandLine);

/// Names that a file can have here, in UTF-8.
std::vector<std::string> oddFileNames();
/// A path here that is no text, or too long.
std::string impossiblePath();

/// Opens something that a process started by the usual means would share, or be stopped by.
void makeInheritanceLikely();
/// What this process shares with the one that has started it; empty when nothing.
std::string sharedWithStarter();
/// Whether a process started by this one, ended or not, still belongs to it.
bool hasChildren();

/// What the error window is closed by; nothing where there is no window.
std::vector<std::string> waysToClose();
/// Waits in a thread for the error window of this title, keeps the text that it shows, and closes it.
std::thread closeErrorWindow(const std::string &title, const std::string &way, std::string &shownText);

} // namespace CrashHost
