#pragma once

#include <QStringList>

#include <functional>

/// Makes the end of a program tell what led to it.
namespace LastWords {

/// @p words are printed when the program crashes, is stopped by a sanitizer, or hangs. Call it once.
void install(const std::function<QStringList()> &words);

/// Tells that the program goes on. Without a call for two minutes it counts as hanging, and is ended; never before the
/// first call.
void alive();

} // namespace LastWords
