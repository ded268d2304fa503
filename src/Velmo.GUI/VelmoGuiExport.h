#pragma once

#include <QtGlobal>

/// Marks what the widget library exports. Only the library's own build defines VELMO_GUI_BUILD.
#ifdef VELMO_GUI_BUILD
#define VELMO_GUI_EXPORT Q_DECL_EXPORT
#else
#define VELMO_GUI_EXPORT Q_DECL_IMPORT
#endif
