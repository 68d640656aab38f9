// What the members of a game cannot be together.
#pragma once

#include "model/game_state.h"
#include "model/outcome.h"

namespace ksm {

/// Fails for what play never leads to, though each member is one that is allowed. The reason begins
/// with the member. The figures must be computed.
Outcome<> CheckGame(const GameState& state);

} // namespace ksm
