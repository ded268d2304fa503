#include "browser/SceneNameIndex.h"

#include <algorithm>

namespace {

/// Folds case one code point at a time, as a case-insensitive comparison does. `QString::toCaseFolded` would also make
/// "straße" and "strasse" the same.
QString folded(const QString &name)
{
    QString key;
    key.reserve(name.size());
    for (qsizetype i = 0; i < name.size(); ++i) {
        const QChar unit = name[i];
        if (unit.isHighSurrogate() && i + 1 < name.size() && name[i + 1].isLowSurrogate())
            key += QChar::fromUcs4(QChar::toCaseFolded(QChar::surrogateToUcs4(unit, name[++i])));
        else
            key += unit.toCaseFolded(); // half a pair stays what it is
    }
    return key;
}

} // namespace

void SceneNameIndex::append(const QString &name)
{
    const QString key = folded(name);
    insert(int(m_keys.size()), key);
    m_keys.append(key);
}

void SceneNameIndex::rename(int row, const QString &name)
{
    if (row < 0 || row >= m_keys.size())
        return;
    const QString key = folded(name);
    if (m_keys[row] == key)
        return;

    const auto known = m_rows.find(m_keys[row]);
    known->removeOne(row);
    if (known->isEmpty())
        m_rows.erase(known);
    insert(row, key);
    m_keys[row] = key;
}

void SceneNameIndex::clear()
{
    m_keys.clear();
    m_rows.clear();
}

int SceneNameIndex::find(const QString &name) const
{
    const auto known = m_rows.constFind(folded(name));
    return known == m_rows.constEnd() ? -1 : known->constFirst();
}

void SceneNameIndex::insert(int row, const QString &key)
{
    QList<int> &rows = m_rows[key];
    rows.insert(std::lower_bound(rows.begin(), rows.end(), row), row);
}
