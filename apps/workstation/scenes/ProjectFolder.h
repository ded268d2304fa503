#pragma once

#include "scenes/SceneFile.h"

#include <QCoreApplication>
#include <QDateTime>
#include <QList>

#include <functional>

class QIODevice;

/// One project on disk: a folder of scene files. Reads the folder anew on every call and keeps nothing.
///
/// No operation ever replaces a file. Names count as equal whatever their case, also where the file system would keep
/// them apart.
class ProjectFolder
{
    Q_DECLARE_TR_FUNCTIONS(ProjectFolder)

public:
    /// What became of a file, or why nothing did.
    struct Change
    {
        SceneFile scene;
        /// In words for the user; empty after success.
        QString problem;
    };

    /// The projects in a folder of projects, by name: every sub-folder is one. Empty for a missing folder.
    static QList<ProjectFolder> projectsIn(const QString &folder);

    explicit ProjectFolder(const QString &path = QString());

    QString name() const;
    /// Absolute, if the folder's own path is or has been made so by `projectsIn`.
    QString path() const;
    /// When a file in it was last written, made, renamed or removed; invalid when unknown.
    QDateTime lastModified() const;
    /// Why the scenes cannot be listed, in words for the user; empty when they can.
    QString problem() const;

    /// The project's scenes, by name.
    QList<SceneFile> scenes() const;

    /// Gives the scene's file another name; a mere change of case is one.
    Change renameScene(const SceneFile &scene, const QString &newName) const;
    /// Writes a new, empty scene under a name that is still free.
    Change addScene() const;
    /// Writes a copy of the scene's file under a name that is still free.
    Change cloneScene(const SceneFile &scene) const;
    /// Moves the scene's file to the trash; where there is no trash, it stays.
    Change deleteScene(const SceneFile &scene) const;
    /// Removes the scene's file for good.
    Change removeScene(const SceneFile &scene) const;

private:
    /// The words for the user when the scene's file has gone, or is no file any more; else empty.
    static QString goneProblem(const SceneFile &scene);
    /// Makes a scene of the first free name like @p baseName; @p write says whether it has written all.
    Change makeScene(const QString &baseName, const std::function<bool(QIODevice &)> &write) const;
    bool isTaken(const QString &fileName, const QString &exceptFileName = QString()) const;

    QString m_path;
};
