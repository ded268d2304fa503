#pragma once

class QWidget;

/// Toolkit widgets that show the application-wide style sheet, embedded so that they can be looked at in peace.
namespace ApplicationSheetSamples {

/// An open menu with a row under the pointer, check marks, a separator and a disabled row.
QWidget *createMenu();
QWidget *createTabs();
QWidget *createGroupBox();
/// Words in the look of a tool tip; resting the pointer on them brings a real one.
QWidget *createToolTip();

} // namespace ApplicationSheetSamples
