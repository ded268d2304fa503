#pragma once

/// What assistive tools are told about the browser: the lists' children are their rows, list items with the name of
/// their project or scene, that are selected or not, and pressing one selects it as a click does; a scene's row is
/// chosen or not and can be toggled, and its toggle is a check box; a curtain's arrow is a button with the curtain's
/// title that is expanded or not.
namespace AccessibleBrowser {

/// Makes the factory know them; each of them calls this when it is constructed.
void install();

} // namespace AccessibleBrowser
