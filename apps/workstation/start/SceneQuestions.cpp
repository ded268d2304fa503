#include "start/SceneQuestions.h"

#include <VelmoMessageBox.h>

#include <QTextDocument>

using namespace Qt::StringLiterals;

bool SceneQuestions::confirmDeleting(const QString &name, QWidget *parent)
{
    // Blanks count in the names of files.
    const QString shownName = u"<b style='white-space:pre-wrap'>%1</b>"_s.arg(name.toHtmlEscaped());
    const QString question = tr("Do you want to move the scene %1 to the trash?").arg(shownName);
    return VelmoQuestionMessage(tr("Delete scene"), question, parent, nullptr) == MsgAccepted;
}

bool SceneQuestions::confirmRemoving(const QString &problem, QWidget *parent)
{
    const QString question = problem + u'\n' + tr("Do you want to delete it for good?");
    return VelmoQuestionMessage(tr("Delete scene"), Qt::convertFromPlainText(question), parent, nullptr) == MsgAccepted;
}

std::optional<QString> SceneQuestions::askNewName(const QString &name, QWidget *parent)
{
    QString newName = name;
    const bool accepted =
        VelmoEditMessage(tr("RENAME"), tr("New name of the scene"), &newName, parent, nullptr) == MsgAccepted;
    return accepted && newName != name ? std::optional(newName) : std::nullopt;
}

void SceneQuestions::report(const QString &title, const QString &problem, QWidget *parent)
{
    VelmoWarningMessage(title, Qt::convertFromPlainText(problem), 0, parent, nullptr);
}
