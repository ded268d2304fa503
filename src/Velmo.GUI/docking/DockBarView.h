#pragma once

/// What decides which parts of a panel's header show.
struct DockBarState
{
    bool searchEnabled = false;
    bool hideSearchUntilHover = true;
    bool hovered = false;
    bool searchFocused = false;
    bool searchEmpty = true;

    /// Nobody is busy with the header: it shows its title only.
    bool isResting() const { return hideSearchUntilHover && !hovered && searchEmpty && !searchFocused; }
    bool showsButtons() const { return !isResting(); }
    /// The search field takes the title's place.
    bool showsSearch() const { return searchEnabled && !isResting(); }
};
