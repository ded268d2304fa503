#pragma once

/// What assistive tools are told about tags: the lists' children are their tags, list items with the tag's text.
/// Pressing a tag that can be moved does what a double click does, pressing one of a tag list selects it; the buttons
/// of a tag are its children.
namespace AccessibleTags {

/// Makes the factory know them; each of them calls this when it is constructed.
void install();

} // namespace AccessibleTags
