#pragma once

#include "foundation/OvixSvgButton.h"

/// One state's button. A class of its own, so that assistive tools see a radio button.
class ToggleButton : public OvixSvgButton
{
    Q_OBJECT

public:
    using OvixSvgButton::OvixSvgButton;
};

/// Tells assistive tools what a toggle and its buttons are.
void installToggleAccessibility();
