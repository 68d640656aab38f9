// The clicks that make and break agreements.
#pragma once

#include "model/game_state.h"

namespace ksm {

/// Each begins a selection unless one is pending.
void BeginAdding(Game& game);
void BeginRemoving(Game& game);

/// Advances the pending selection by a player 1..10, and draws what comes of it. Returns whether
/// the agreements changed, so that the figures have to follow.
[[nodiscard]] bool PickPlayer(Game& game, int player);

} // namespace ksm
