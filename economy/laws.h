// Labour Union and the Orlen house rules.
#pragma once

#include "model/game_state.h"

namespace ksm {

/// The figures follow with the next UpdateValues.
inline void ToggleLabourUnion(Game& game) { game.Laws.LabourUnion = !game.Laws.LabourUnion; }

/// The order of play follows with the next TurnOrder.
inline void ToggleOrlenHouseRules(Game& game) {
    game.Laws.OrlenHouseRules = !game.Laws.OrlenHouseRules;
}

} // namespace ksm
