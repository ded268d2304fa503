#pragma once

#include <QString>

/// Draws the application's windows and gallery pages into pictures. The results are exit codes: 0 when every picture
/// was drawn and written without a warning of the toolkit, else 1.
namespace Shots {

/// Starts this program once for each scale, since the scale of a process is fixed. Needs no display itself: the
/// processes use @p platform.
int drawAtAllScales(const QString &folder, const QString &projectsFolder, const QString &platform);

/// Draws everything at the scale of this process.
int draw(const QString &folder, const QString &projectsFolder, double scale);

} // namespace Shots
