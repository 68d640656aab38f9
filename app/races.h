// What a race gives its player.
#pragma once

#include "model/game_state.h"

#include <string_view>

namespace ksm {

/// Makes `race` the player's race: technology costs, Enviro Comp. with what it enables, and the
/// home planets, after all planets that the player held have gone back to the pool.
void ChooseRace(GameState& state, int player, Race race);

/// Gives every loaded planet of exactly this name to the player, whoever owned it.
void AssignPlanetByName(GameState& state, std::string_view name, int player);

} // namespace ksm
