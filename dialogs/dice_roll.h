// Rolling ten-sided dice onto a pattern of places.
#pragma once

#include <array>
#include <functional>

namespace ksm {

inline constexpr int MaxDice = 7; ///< as many as there are places

/// What lies at each place: 1..10, or 0 where no die fell.
using DicePlaces = std::array<int, MaxDice>;

/// Rolls 1..7 dice. `fraction` gives random fractions, uniform in [0, 1): one for a place, and one
/// for a value when that place is still free; a place that is taken costs its draw only.
DicePlaces RollDice(int dice, const std::function<double()>& fraction);

} // namespace ksm
