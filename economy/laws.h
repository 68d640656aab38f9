// Labour Union and the Orlen house rules.
#pragma once

#include "model/game_state.h"

namespace ksm {

/// The figures follow with the next UpdateValues.
void ToggleLabourUnion(Game& game);
/// The order of play follows with the next TurnOrder.
void ToggleOrlenHouseRules(Game& game);

} // namespace ksm
