#pragma once

#include <QColor>
#include <QString>

/// A title line "title: subtitle" as rich text, white and grey. The texts are shown as typed: escaped, and with blanks
/// that do not break.
inline QString titleText(const QString &title, const QString &subtitle)
{
    const auto coloured = [](const QString &text, const QColor &colour) {
        QString shown = text.toHtmlEscaped();
        shown.replace(QLatin1Char(' '), QLatin1String("&nbsp;"));
        return QStringLiteral("<font color=\"%1\"> %2</font>").arg(colour.name(), shown);
    };
    return coloured(title + QLatin1String(": "), QColor(Qt::white)) + coloured(subtitle, QColor(156, 156, 156));
}
