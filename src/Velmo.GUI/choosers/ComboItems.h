#pragma once

#include <QList>
#include <QString>
#include <QStringList>

/// The items of a combo: parallel lists of texts, values ("metas") and enabled flags.
struct ComboItems
{
    QStringList texts;
    QStringList metas;
    QList<bool> enabled;

    int count() const { return int(texts.size()); }
    bool has(int index) const { return index >= 0 && index < count(); }

    /// An empty value is the text itself.
    void add(const QString &text, const QString &meta)
    {
        texts.append(text);
        metas.append(meta.isEmpty() ? text : meta);
        enabled.append(true);
    }

    /// The index has to be one of an item.
    void remove(int index)
    {
        texts.removeAt(index);
        metas.removeAt(index);
        enabled.removeAt(index);
    }

    /// The first item with this value, unless it is empty, else the first with this text, else -1.
    int find(const QString &text, const QString &meta) const
    {
        const int index = meta.isEmpty() ? -1 : int(metas.indexOf(meta));
        return index >= 0 ? index : int(texts.indexOf(text));
    }
};
