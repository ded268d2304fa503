#pragma once

/// True while the user holds Escape and works in this application: its focus window is the system's foreground window.
bool userHoldsEscape();
