#pragma once

#include <QCoreApplication>
#include <QString>

#include <optional>

class QWidget;

/// The boxes about scene files. Each runs until it is answered; @p parent may be gone afterwards. Names are shown as
/// they are.
class SceneQuestions
{
    Q_DECLARE_TR_FUNCTIONS(SceneQuestions)

public:
    /// Whether the scene is to go to the trash.
    static bool confirmDeleting(const QString &name, QWidget *parent);
    /// Whether the scene is to go for good; @p problem tells why it cannot go to the trash.
    static bool confirmRemoving(const QString &problem, QWidget *parent);
    /// The new name, which may be empty; nothing when the scene keeps its name.
    static std::optional<QString> askNewName(const QString &name, QWidget *parent);

    enum class Leaving { Save, Discard, Stay };
    /// What is to become of a scene that is about to be left and has not been saved. @p note, if any, comes first.
    static Leaving askToSave(const QString &name, const QString &note, QWidget *parent);
    /// Whether to save over what somebody else has made of the scene's file.
    static bool confirmReplacing(const QString &name, QWidget *parent);

    static void report(const QString &title, const QString &problem, QWidget *parent);
};
