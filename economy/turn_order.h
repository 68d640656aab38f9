// Who moves first: the ranking by influence.
#pragma once

#include "model/game_state.h"

#include <array>

namespace ksm {

struct TurnOrderRow {
    int Player = 0; ///< 1..10
    /// A Dravik player without any agreement is written in italics.
    bool Italic = false;

    bool operator==(const TurnOrderRow&) const = default;
};

/// All ten slots, highest influence first. Equal influence: more resources first, or fewer under
/// the Orlen house rules; equal in both: the lower player number first.
std::array<TurnOrderRow, MaxPlayers> TurnOrder(const GameState& state);

} // namespace ksm
