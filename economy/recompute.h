// What follows from a change of an input.
#pragma once

#include "model/game_state.h"

namespace ksm {

/// Recomputes every derived figure, then ranks the players by them.
void Recompute(Game& game);

} // namespace ksm
