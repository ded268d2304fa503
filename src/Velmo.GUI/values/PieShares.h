#pragma once

#include <vector>

/// How a hundred percent are shared: the arithmetic of the pie chart, in percent and single precision.
namespace PieShares {

/// What no slice falls below.
inline constexpr float Floor = 1.0F;
inline constexpr float Whole = 100.0F;

/// A share as it can be reckoned with: 0 for what is not a number or infinite, and within a million either way.
float plausible(float share);

/// Whether the two are the same share, as far as the redistribution is concerned.
bool isSame(float share, float other);

/// Takes @p amount from the others (gives to them when it is negative), in equal parts and in their order.
///
/// A share that would fall below the floor is put on it and takes no further part; what it held above the floor is
/// added to what the remaining ones give. So they give more than was asked for, and the slice that grows gets more:
/// of 45 and 5 percent, asked for 10, there remain 31 and 1.
void take(float amount, std::vector<float> &others);

/// What @p sumOfOthers leaves of the whole, but the floor at least.
float remainder(float sumOfOthers);

/// The share of each of @p count slices that divide what is not locked, but the floor at least. The whole for none.
float equalPart(float sumOfLocked, int count);

} // namespace PieShares
