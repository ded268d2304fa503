// Feeds bytes to the drag payload, which has to refuse them whole or to write back exactly what it has read.

#include "VelmoDropData.h"

#include <QMimeData>

#include <cstdint>
#include <cstdlib>
#include <memory>

using namespace Qt::StringLiterals;

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    const QString format = u"application/x-velmodropdata"_s;
    const QByteArray bytes(reinterpret_cast<const char *>(data), qsizetype(size));
    QMimeData mime;
    mime.setData(format, bytes);
    const VelmoDropData payload(&mime);
    if (payload.getType() < 0)
        return payload.getItemNames().isEmpty() ? 0 : (std::abort(), 0);
    const std::unique_ptr<QMimeData> written(payload.getMimeData());
    if (written->data(format) != bytes)
        std::abort();
    return 0;
}
