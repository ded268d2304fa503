#pragma once

#include "foundation/ShownText.h"
#include "messages/VelmoMessageBox.h"

#include <algorithm>

/// The height of a box whose text takes @p textHeight: the least one, and what the text needs beyond its own least
/// height. The text never gets more than @p mostText.
inline int boxHeight(int least, int leastText, int mostText, double textHeight)
{
    return least + std::max(std::min(mostText, int(textHeight)) - leastText, 0);
}

/// What is shown of a body. Nobody reads more in a box, and the toolkit would lay out a million characters for minutes.
inline QString shownBody(const QString &text)
{
    constexpr int longest = 20000;
    if (text.size() <= longest)
        return text;
    return text.left(text[longest - 1].isHighSurrogate() ? longest - 1 : longest) + QChar(0x2026);
}

/// Whether tables stand in tables so deep that the toolkit never ends: each level takes it twice as long.
inline bool hasTooDeepTables(const QString &text)
{
    constexpr int deepest = 8;
    int depth = 0;
    for (qsizetype at = text.indexOf(QLatin1Char('<')); at >= 0; at = text.indexOf(QLatin1Char('<'), at + 1)) {
        const QStringView tag = QStringView(text).mid(at + 1, 6);
        if (tag.startsWith(QLatin1String("table"), Qt::CaseInsensitive))
            ++depth;
        else if (tag.startsWith(QLatin1String("/table"), Qt::CaseInsensitive))
            depth = std::max(depth - 1, 0);
        if (depth > deepest)
            return true;
    }
    return false;
}

/// What the OK half says while the box waits, and afterwards.
inline QString countdownText(const QString &text, int seconds)
{
    return seconds < 1 ? text : text + QLatin1String(" (") + QString::number(seconds) + QLatin1Char(')');
}

/// Whatever ends a run other than a button counts as a rejection.
inline VelmoMsgReturnCode returnCodeOf(int result)
{
    return result == MsgAccepted || result == MsgOther ? VelmoMsgReturnCode(result) : MsgRejected;
}

/// A box's body that names something a user has named: @p message, which may be rich text, with @p name as typed in the
/// place of its %1.
inline QString bodyNaming(const QString &message, const QString &name)
{
    // The box takes a text without tags for plain; this one is rich, whatever message and name are.
    const QString body = QString(message).replace(QLatin1String("%1"), ShownText::oneLine(name).toHtmlEscaped());
    return QLatin1String("<div style='white-space:pre-wrap'>") + body + QLatin1String("</div>");
}
