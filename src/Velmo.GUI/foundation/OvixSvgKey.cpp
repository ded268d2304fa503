#include "foundation/OvixSvgKey.h"

#include <QHashFunctions>

size_t qHash(const OvixSvgLayer &layer, size_t seed) noexcept
{
    return qHashMulti(seed, layer.filename, layer.rect.x(), layer.rect.y(), layer.rect.width(), layer.rect.height(),
                      qHashRange(layer.elementIds.cbegin(), layer.elementIds.cend(), seed));
}

size_t qHash(const OvixSvgKey &key, size_t seed) noexcept
{
    return qHashMulti(seed, key.devicePixelRatio, key.supersampling, key.size.width(), key.size.height(),
                      key.margins.left(), key.margins.top(), key.margins.right(), key.margins.bottom(), key.inverted,
                      key.opacity, qHashRange(key.layers.cbegin(), key.layers.cend(), seed));
}

bool operator==(const OvixSvgKey &left, const OvixSvgKey &right) noexcept
{
    return qHash(left, 0) == qHash(right, 0);
}
