#pragma once

#include "foundation/ShownText.h"

#include <QColor>
#include <QString>

inline const QColor titleGrey(156, 156, 156);

/// Two texts on one line as rich text, white and grey. They are shown as typed: escaped, and with blanks that do not
/// break.
inline QString whiteAndGrey(const QString &white, const QString &grey)
{
    const auto coloured = [](const QString &text, const QColor &colour) {
        QString shown = ShownText::oneLine(text).toHtmlEscaped();
        shown.replace(QLatin1Char(' '), QLatin1String("&nbsp;"));
        return QStringLiteral("<font color=\"%1\"> %2</font>").arg(colour.name(), shown);
    };
    return coloured(white, QColor(Qt::white)) + coloured(grey, titleGrey);
}
