#pragma once

#include <QString>

/// A scene of a project: its name as the user sees it, and its file.
struct SceneFile
{
    /// The file's name without its ending.
    QString name;
    QString path;

    static QString ending() { return QStringLiteral(".vscene"); }
};
