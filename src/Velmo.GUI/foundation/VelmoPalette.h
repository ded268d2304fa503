#pragma once

#include <QLatin1String>

/// The colours of the look, written as the style sheets write them: those texts are compared, blanks included.
namespace VelmoPalette {

/// The deepest background: menus, pop-ups, frames.
inline constexpr QLatin1String deep("rgb(28,28,28)");
/// The main background.
inline constexpr QLatin1String background("rgb(39,39,39)");
/// Raised surfaces: buttons, line edits, lists.
inline constexpr QLatin1String raised("rgb(59,59,59)");
/// Disabled text; separators and handles under the pointer.
inline constexpr QLatin1String disabledText("rgb(81,81,81)");
/// Secondary text; grey buttons under the pointer.
inline constexpr QLatin1String secondaryText("rgb(156,156,156)");
/// Primary text.
inline constexpr QLatin1String text("rgb(219,219,219)");
/// Text of a row under the pointer.
inline constexpr QLatin1String white("rgb(255,255,255)");
/// What lies under the pointer, lightened.
inline constexpr QLatin1String hover("rgba(255,255,255,38)");
/// What is selected.
inline constexpr QLatin1String accent("rgb(116, 211, 252)");
/// The accent as a background of what is selected.
inline constexpr QLatin1String accentTranslucent("rgba(116, 211, 252,48)");
/// A checked indicator; the border of what is chosen.
inline constexpr QLatin1String checked("rgb(22, 129, 189)");
/// No colour at all.
inline constexpr QLatin1String transparent("transparent");

} // namespace VelmoPalette
