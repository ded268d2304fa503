#pragma once

/// The words for those texts of the library that are mere keys.
namespace Wording {

/// Gives them to the application object, once. False when they are missing.
bool install();

} // namespace Wording
