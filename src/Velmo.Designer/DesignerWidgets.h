#pragma once

#include "DesignerWidget.h"

#include <vector>

/// Every widget of the library that is created with a parent alone and stands where a form puts it. Left out are
/// windows, pop-ups and overlays.
std::vector<DesignerEntry> designerWidgets();
