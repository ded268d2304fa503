#pragma once

#include <QColor>

/// The colours of the application's own panels: those of the widgets it shows.
namespace Palette {

inline const QColor window(39, 39, 39);
inline const QColor raised(59, 59, 59);
inline const QColor deep(28, 28, 28);
inline const QColor line(81, 81, 81);
inline const QColor disabledText(105, 105, 105);
inline const QColor secondaryText(156, 156, 156);
inline const QColor text(219, 219, 219);
inline const QColor accent(116, 211, 252);
inline const QColor warning(249, 199, 26);

} // namespace Palette
