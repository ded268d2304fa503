#pragma once

#include "foundation/VelmoStyle.h"

#include <QWidget>

#include <algorithm>

/// The width of a chip: its text's and what is beside it. Texts that no widget can show do not count in full.
inline int chipWidth(const QString &text, int beside)
{
    return std::clamp(VelmoStyle::styleDockTextWidth(text), 0, QWIDGETSIZE_MAX - beside) + beside;
}
