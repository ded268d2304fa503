#pragma once

#include <QList>
#include <QString>

#include <algorithm>

/// Where a text goes among others in an order that ignores case: before the first that compares greater, at the end
/// when there is none.
namespace SortedPlace {

inline bool isLess(const QString &left, const QString &right)
{
    return QString::compare(left, right, Qt::CaseInsensitive) < 0;
}

/// Halves what is left with each comparison; the texts have to be in order.
inline int amongSorted(const QList<QString> &texts, const QString &text)
{
    return int(std::upper_bound(texts.begin(), texts.end(), text, isLess) - texts.begin());
}

/// Walks through texts in any order.
inline int amongAny(const QList<QString> &texts, const QString &text)
{
    const auto isGreater = [&text](const QString &other) { return isLess(text, other); };
    return int(std::find_if(texts.begin(), texts.end(), isGreater) - texts.begin());
}

inline bool isSorted(const QList<QString> &texts)
{
    return std::is_sorted(texts.begin(), texts.end(), isLess);
}

} // namespace SortedPlace
