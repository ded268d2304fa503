#pragma once

#include <QCoreApplication>
#include <QString>
#include <QStringList>

/// What the user has asked for on the command line.
struct CommandLine
{
    Q_DECLARE_TR_FUNCTIONS(CommandLine)

public:
    enum class Task { StartScreen, Gallery, Shots, Help, Version, Refuse };

    Task task = Task::StartScreen;
    /// The folder of projects, absolute; empty for the shipped ones.
    QString projectsFolder;
    /// The gallery page to open first; empty for the first one.
    QString galleryPage;
    /// Where the pictures go, absolute.
    QString shotsFolder;
    /// The scale at which this process draws its pictures; 0 when it is to start one process for each scale.
    double shotsScale = 0;
    /// The platform plug-in for the processes that draw pictures.
    QString shotsPlatform;
    /// What to print for Help and Refuse.
    QString message;

    /// Reads the arguments, the program's name first. Relative paths start at @p currentFolder.
    static CommandLine parse(const QStringList &arguments, const QString &currentFolder);
};
