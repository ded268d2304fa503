#include "docking/OvixThumbnailSize.h"

const QList<int> OvixThumbnailSize::Sizes{None, Small, Medium, Large};
