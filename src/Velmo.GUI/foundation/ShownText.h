#pragma once

#include <QChar>
#include <QString>

/// How a text from outside is shown, whatever its length and letters.
namespace ShownText {

/// More characters than any line has room for.
constexpr int longest = 1000;

/// The text on one line: its breaks and tabs are blanks, and beyond the longest line there is an ellipsis.
inline QString oneLine(const QString &text)
{
    QString line = text.left(longest);
    if (text.size() > longest) {
        if (line.back().isHighSurrogate())
            line.chop(1);
        line += QChar(0x2026);
    }
    for (QChar &character : line) {
        if (character.isSpace() && character.category() != QChar::Separator_Space)
            character = QLatin1Char(' ');
    }
    return line;
}

/// The text as menus and buttons have to be told it: none of its letters is a shortcut.
inline QString withoutMnemonics(QString text)
{
    return text.replace(QLatin1Char('&'), QLatin1String("&&"));
}

} // namespace ShownText
