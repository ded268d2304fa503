#pragma once

#include <QByteArray>
#include <QString>

#include <functional>

/// Files that a test makes and looks into.
namespace Files {

/// Writes a file, and makes the folders round it; ends the program when that fails.
void write(const QString &path, const QByteArray &content);
/// Empty when there is no such file.
QByteArray read(const QString &path);

/// Does something while no file can grow beyond 50,000 bytes, as on a disk that is full. False where that cannot be
/// had.
bool onFullDisk(const std::function<void()> &act);

} // namespace Files
