#pragma once

#include <string>

/// Starts the program with one argument, both UTF-8, as a process of its own, one source file a system. False when it
/// cannot be started.
bool startDetached(const std::string &program, const std::string &argument);
