#pragma once

#include "VelmoBaseExport.h"

#include <QByteArray>
#include <QList>
#include <QString>

class QMimeData;

/// What is dragged inside the application: named items of one type, in order.
///
/// Travels in a `QMimeData` under "application/x-velmodropdata". What is read from there may come from any process:
/// anything but exactly what `getMimeData` has written gives a payload without items whose type is `NoType`.
class VELMO_BASE_EXPORT VelmoDropData
{
public:
    /// What is dragged. Widgets that accept drops take one type only. The application may use any other value from 0.
    enum Type : int {
        NoType = -1, ///< of a payload that could not be read; no widget takes it. Any value below 0 is read back as it
        Tags = 0, ///< what lists of tags take by default
        Categories = 1 ///< for editors of categories, which take no tags
    };

    /// One dragged element.
    struct Item
    {
        /// What the item is called; shown to the user, and all that the lists of tags look at.
        QString name;
        /// What else the application needs to know of it, in a form of its own; may be empty.
        QByteArray data;
    };

    /// A payload of these items; there may be none.
    VelmoDropData(const QList<Item> &items, Type type);
    /// Reads the payload from @p mime, which may be null and is not kept.
    explicit VelmoDropData(const QMimeData *mime);

    /// `NoType` for a payload that could not be read.
    Type getType() const;

    /// The payload for a drag; the caller owns it. A payload of more than 256 MiB does not travel: it is read back as
    /// one of `NoType`.
    QMimeData *getMimeData() const;

    /// The names of the items, in their order.
    QList<QString> getItemNames() const;

private:
    QList<Item> m_items;
    Type m_type;
};
