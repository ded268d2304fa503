#pragma once

#include <QString>

/// Style sheets of the application's own windows. Each goes on the widget it is named after.
namespace Sheets {

/// A window on the dark background, with the rules for its parts by object name: header, title, subtitle, panels,
/// panel titles and the status line.
QString window();
/// A list of names with rounded rows: accent while selected, lighter under the pointer.
QString nameList();
/// A list of pictures with a line of words below each, or of words only.
QString library();
/// What a tool panel holds: a widget called panel.
QString toolPanel();
/// A slim bar without arrows.
QString scrollBar();
/// A button with words; the default one in the accent colour.
QString button();
/// Small words beside more important ones.
QString secondaryText();
/// A scroll area that shows the background it lies on.
QString clearScrollArea();

} // namespace Sheets
