#pragma once

/// Marks what the widget library exports. Only the library's own build defines VELMO_GUI_BUILD. Free of the toolkit, as
/// some headers are.
#if !defined(_WIN32)
#define VELMO_GUI_EXPORT __attribute__((visibility("default")))
#elif defined(VELMO_GUI_BUILD)
#define VELMO_GUI_EXPORT __declspec(dllexport)
#else
#define VELMO_GUI_EXPORT __declspec(dllimport)
#endif
