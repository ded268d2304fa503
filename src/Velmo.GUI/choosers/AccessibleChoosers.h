#pragma once

/// What assistive tools are told about the choosers: a text button with its state; a combo box with its caption as the
/// name and what it shows as the value and text, which pressing opens: the open menu is its child.
namespace AccessibleChoosers {

/// Makes the factory know them; each of them calls this when it is constructed.
void install();

} // namespace AccessibleChoosers
