#pragma once

#include "foundation/OvixSvgButton.h"

/// The toggle in a scene's row. A class of its own, so that assistive tools see a check box.
class SceneToggle : public OvixSvgButton
{
    Q_OBJECT

public:
    using OvixSvgButton::OvixSvgButton;
};
