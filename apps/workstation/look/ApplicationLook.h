#pragma once

#include <QString>

/// The dark look of the whole process. Install it once, right after the application object has been made.
namespace ApplicationLook {

void install();

/// What the user should know about the look, for instance that a font is missing; empty when all is well.
QString problem();

} // namespace ApplicationLook
