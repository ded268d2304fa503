#include "start/SceneQuestions.h"

#include <VelmoMessageBox.h>

#include <QTextDocument>

using namespace Qt::StringLiterals;

namespace {

/// Blanks count in the names of files.
QString emphasised(const QString &name)
{
    return u"<b style='white-space:pre-wrap'>%1</b>"_s.arg(name.toHtmlEscaped());
}

} // namespace

bool SceneQuestions::confirmDeleting(const QString &name, QWidget *parent)
{
    const QString question = tr("Do you want to move the scene %1 to the trash?").arg(emphasised(name));
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

SceneQuestions::Leaving SceneQuestions::askToSave(const QString &name, const QString &note, QWidget *parent)
{
    const QString question = tr("Do you want to save what has changed in the scene %1?").arg(emphasised(name));
    const QString text = note.isEmpty() ? question : note.toHtmlEscaped() + u"<br>"_s + question;
    switch (VelmoCustomThreeOptionMessage(tr("QUESTION"), tr("Save scene"), text, tr("Save"), tr("Don't save"), false,
                                          0, parent, nullptr)) {
    case MsgAccepted:
        return Leaving::Save;
    case MsgOther:
        return Leaving::Discard;
    case MsgRejected:
        break;
    }
    return Leaving::Stay;
}

bool SceneQuestions::confirmReplacing(const QString &name, QWidget *parent)
{
    const QString question = tr("The file of the scene %1 has been changed by somebody else since it was opened.<br>"
                                "Do you want to replace it?")
                                 .arg(emphasised(name));
    return VelmoQuestionMessage(tr("Save scene"), question, parent, nullptr) == MsgAccepted;
}

void SceneQuestions::report(const QString &title, const QString &problem, QWidget *parent)
{
    VelmoWarningMessage(title, Qt::convertFromPlainText(problem), 0, parent, nullptr);
}
