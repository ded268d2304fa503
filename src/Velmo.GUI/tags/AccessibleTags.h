#pragma once

/// What assistive tools are told about tags: list items with the tag's text; pressing one that can be moved does what a
/// double click does.
namespace AccessibleTags {

/// Makes the factory know them; each of them calls this when it is constructed.
void install();

} // namespace AccessibleTags
