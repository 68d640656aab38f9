// Who moves first: the ranking by influence.
#pragma once

#include "model/game_state.h"

namespace ksm {

/// Ranks all ten slots by the figures last computed and writes the rows of the summary table:
/// highest influence first. Equal influence: more resources first, or fewer under the Orlen house
/// rules; equal in both: the lower player number first.
void TurnOrder(Game& game);

} // namespace ksm
