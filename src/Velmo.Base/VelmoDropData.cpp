#include "VelmoDropData.h"

#include <QByteArrayView>
#include <QMimeData>
#include <QtEndian>

#include <optional>

using namespace Qt::StringLiterals;

// The bytes, numbers in little endian of 32 bits:
//   "VDRP", version, type, number of items; for each item: length of the name in UTF-16 units, the name, length of the
//   data block in bytes, the data block. Nothing may follow.

namespace {

constexpr QByteArrayView magic("VDRP");
constexpr quint32 version = 1;
constexpr qsizetype numberSize = sizeof(quint32);
constexpr qsizetype unitSize = sizeof(char16_t);
constexpr qsizetype largestSize = qsizetype(256) * 1024 * 1024;
constexpr qsizetype smallestItemSize = 2 * numberSize;

QString mimeFormat()
{
    return u"application/x-velmodropdata"_s;
}

void appendNumber(QByteArray &bytes, quint32 number)
{
    const quint32 stored = qToLittleEndian(number);
    bytes.append(reinterpret_cast<const char *>(&stored), numberSize);
}

void appendItem(QByteArray &bytes, const VelmoDropData::Item &item)
{
    appendNumber(bytes, quint32(item.name.size()));
    const qsizetype start = bytes.size();
    bytes.resize(start + item.name.size() * unitSize);
    qToLittleEndian<quint16>(item.name.utf16(), item.name.size(), bytes.data() + start);
    appendNumber(bytes, quint32(item.data.size()));
    bytes.append(item.data);
}

/// The size of the encoded items, or nothing when it is beyond the largest.
std::optional<qsizetype> encodedSize(const QList<VelmoDropData::Item> &items)
{
    qsizetype size = magic.size() + 3 * numberSize;
    for (const VelmoDropData::Item &item : items) {
        if (item.name.size() > largestSize || item.data.size() > largestSize)
            return {};
        size += smallestItemSize + item.name.size() * unitSize + item.data.size();
        if (size > largestSize)
            return {};
    }
    return size;
}

QByteArray encode(const QList<VelmoDropData::Item> &items, VelmoDropData::Type type)
{
    QByteArray bytes;
    const std::optional<qsizetype> size = encodedSize(items);
    if (!size || type < 0)
        return bytes;
    bytes.reserve(*size);
    bytes.append(magic);
    appendNumber(bytes, version);
    appendNumber(bytes, quint32(type));
    appendNumber(bytes, quint32(items.size()));
    for (const VelmoDropData::Item &item : items)
        appendItem(bytes, item);
    return bytes;
}

/// Takes pieces off the front of bytes that it does not own.
class Reader
{
public:
    explicit Reader(QByteArrayView bytes) : m_left(bytes) { }

    std::optional<QByteArrayView> take(qsizetype size)
    {
        if (size > m_left.size())
            return {};
        const QByteArrayView piece = m_left.first(size);
        m_left = m_left.sliced(size);
        return piece;
    }

    std::optional<quint32> takeNumber()
    {
        const std::optional<QByteArrayView> piece = take(numberSize);
        return piece ? std::optional(qFromLittleEndian<quint32>(piece->data())) : std::nullopt;
    }

    /// A length and that many units of @p size bytes.
    std::optional<QByteArrayView> takeBlock(qsizetype size)
    {
        const std::optional<quint32> length = takeNumber();
        return length && *length <= largestSize ? take(qsizetype(*length) * size) : std::nullopt;
    }

    qsizetype left() const { return m_left.size(); }

private:
    QByteArrayView m_left;
};

QString nameOf(QByteArrayView stored)
{
    QString name(stored.size() / unitSize, Qt::Uninitialized);
    qFromLittleEndian<quint16>(stored.data(), name.size(), name.data());
    return name;
}

struct Payload
{
    QList<VelmoDropData::Item> items;
    VelmoDropData::Type type = VelmoDropData::NoType;
};

Payload decode(const QByteArray &bytes)
{
    Reader reader(bytes);
    const std::optional<QByteArrayView> start = reader.take(magic.size());
    if (bytes.size() > largestSize || !start || *start != magic || reader.takeNumber() != version)
        return {};
    const std::optional<quint32> type = reader.takeNumber();
    const std::optional<quint32> count = reader.takeNumber();
    if (!type || qint32(*type) < 0 || !count || *count > reader.left() / smallestItemSize)
        return {};

    Payload payload;
    payload.items.reserve(qsizetype(*count));
    for (quint32 i = 0; i < *count; ++i) {
        const std::optional<QByteArrayView> name = reader.takeBlock(unitSize);
        const std::optional<QByteArrayView> data = name ? reader.takeBlock(1) : std::nullopt;
        if (!data)
            return {};
        payload.items.append({nameOf(*name), data->toByteArray()});
    }
    if (reader.left() > 0)
        return {};
    payload.type = VelmoDropData::Type(qint32(*type));
    return payload;
}

} // namespace

VelmoDropData::VelmoDropData(const QList<Item> &items, Type type) : m_items(items), m_type(type)
{ }

VelmoDropData::VelmoDropData(const QMimeData *mime) : m_type(NoType)
{
    if (!mime)
        return;
    const Payload payload = decode(mime->data(mimeFormat()));
    m_items = payload.items;
    m_type = payload.type;
}

VelmoDropData::Type VelmoDropData::getType() const
{
    return m_type;
}

QMimeData *VelmoDropData::getMimeData() const
{
    auto *mime = new QMimeData;
    mime->setData(mimeFormat(), encode(m_items, m_type));
    return mime;
}

QList<QString> VelmoDropData::getItemNames() const
{
    QList<QString> names;
    names.reserve(m_items.size());
    for (const Item &item : m_items)
        names.append(item.name);
    return names;
}
