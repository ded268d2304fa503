#pragma once

#include <QString>

/// Which part of a text is being completed, and what becomes of it.
namespace WordCompletion {

struct Word
{
    int start = 0;
    int length = 0;

    bool holds(int cursor) const { return cursor >= start && cursor <= start + length; }
};

inline bool separatesWords(QChar character)
{
    return character.isSpace() || character == QLatin1Char(',');
}

/// The word that the cursor stands in or at the end of: empty between two separators. The whole text unless @p
/// eachWord.
inline Word wordAt(const QString &text, int cursor, bool eachWord)
{
    if (!eachWord)
        return {0, int(text.size())};
    int start = qBound(0, cursor, int(text.size()));
    int end = start;
    while (start > 0 && !separatesWords(text[start - 1]))
        --start;
    while (end < text.size() && !separatesWords(text[end]))
        ++end;
    return {start, end - start};
}

/// The text with the candidate in the place of the word.
inline QString accepted(const QString &text, Word word, const QString &candidate)
{
    return QString(text).replace(word.start, word.length, candidate);
}

} // namespace WordCompletion
