#pragma once

#include <QHash>
#include <QList>
#include <QString>

/// Finds list rows by scene name without walking the rows: upper and lower case are the same, and of several rows with
/// one name the first one counts.
class SceneNameIndex
{
public:
    /// Appends a row.
    void append(const QString &name);
    /// Gives an existing row another name; other row numbers are ignored.
    void rename(int row, const QString &name);
    void clear();

    /// The first row of this name, or -1.
    int find(const QString &name) const;

private:
    void insert(int row, const QString &key);

    QList<QString> m_keys;
    QHash<QString, QList<int>> m_rows;
};
