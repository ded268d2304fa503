#pragma once

#include "foundation/OvixSvgButton.h"

/// The button in a curtain's header. A class of its own, so that assistive tools see that it expands something.
class CurtainArrow : public OvixSvgButton
{
    Q_OBJECT

public:
    using OvixSvgButton::OvixSvgButton;
};
