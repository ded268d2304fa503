#pragma once

/// What assistive tools are told about a menu bar that is a title bar: its menus, and then the window buttons, which
/// the toolkit's own interface of a menu bar leaves out.
namespace AccessibleTitleBar {

/// Makes the factory know it; title bars call this when they are constructed.
void install();

} // namespace AccessibleTitleBar
