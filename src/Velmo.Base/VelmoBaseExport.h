#pragma once

#include <QtGlobal>

/// Marks what the base library exports. Only the library's own build defines VELMO_BASE_BUILD.
#ifdef VELMO_BASE_BUILD
#define VELMO_BASE_EXPORT Q_DECL_EXPORT
#else
#define VELMO_BASE_EXPORT Q_DECL_IMPORT
#endif
