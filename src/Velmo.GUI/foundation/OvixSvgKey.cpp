#include "foundation/OvixSvgKey.h"

#include <QHashFunctions>

static_assert(sizeof(size_t) == 8, "Equality of keys rests on 64 bits of hash.");

size_t qHash(const OvixSvgLayer &layer, size_t seed) noexcept
{
    return qHashMulti(seed, layer.filename, layer.rect.left(), layer.rect.top(), layer.rect.right(),
                      layer.rect.bottom(), qHashRange(layer.elementIds.cbegin(), layer.elementIds.cend(), seed));
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
