#pragma once

#include "messages/VelmoMessageBox.h"

#include <algorithm>

/// The height of a box whose text takes @p textHeight: the least one, and what the text needs beyond its own least
/// height. The text never gets more than @p mostText.
inline int boxHeight(int least, int leastText, int mostText, double textHeight)
{
    return least + std::max(std::min(mostText, int(textHeight)) - leastText, 0);
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
