// Labour Union and the Orlen house rules.
#pragma once

#include "model/game_state.h"

namespace ksm {

/// Switches Labour Union on or off; the figures follow with the next UpdateValues.
void MenuLabour_Click(Game& game);
/// Switches the house rule on or off; the order of play follows with the next TurnOrder.
void MenuOrlen_Click(Game& game);

} // namespace ksm
