#pragma once

#include <QColor>

#include <array>

/// Colours that differ for everyone, also without red and green. The last is that of texts.
inline constexpr std::array distinctColours{QColor(116, 211, 252), QColor(249, 199, 26), QColor(227, 155, 214),
                                            QColor(0, 158, 115),   QColor(213, 94, 0),   QColor(219, 219, 219)};
