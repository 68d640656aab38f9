// Which technology boxes can be ticked.
#pragma once

#include "model/player_record.h"

namespace ksm {

/// Applied whenever the player's Enviro Comp. box changes. A box that is ticked stays enabled, and
/// nothing here ticks or clears a box.
void UpdateTechBoxes(PlayerRecord& player);

} // namespace ksm
