#pragma once

#include "scenes/Scene.h"

#include <QCoreApplication>

/// Saves edited scenes to their files. A file is replaced whole or stays as it is, byte for byte.
class SceneSaving
{
    Q_DECLARE_TR_FUNCTIONS(SceneSaving)

public:
    /// What to do with a file that somebody else has changed since the scene was read.
    enum class ChangedFile { Keep, Replace };

    struct Outcome
    {
        bool isSaved = false;
        /// The file has been changed by somebody else, and kept.
        bool hasKeptChanged = false;
        /// Why it is not saved, in words for the user.
        QString problem;
        /// As the file has it now.
        Scene scene;
    };

    /// Writes a file that has gone anew, as long as its folder is there.
    static Outcome save(const Scene &scene, ChangedFile changed);
    /// The same in a thread of its own. What the user does waits meanwhile; all other events are handled, and whoever
    /// has called may be gone afterwards.
    static Outcome saveInBackground(const Scene &scene, ChangedFile changed);
};
