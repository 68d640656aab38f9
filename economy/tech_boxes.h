// Which technology boxes can be ticked.
#pragma once

#include "model/player_record.h"

namespace ksm {

/// Applied whenever the player's Enviro Comp. box changes. A box that is ticked stays enabled, and
/// nothing here ticks or clears a box.
inline void UpdateTechBoxes(PlayerRecord& player) {
    player.PellamToolsEnabled = player.Enviro || player.PellamTools;
    player.MicroEnabled = player.PellamToolsEnabled || (player.MicroEnabled && player.Micro);
}

} // namespace ksm
