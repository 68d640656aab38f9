// What the players decide before play: their number, their races, and the start.
#pragma once

#include "model/game_state.h"

#include <string_view>

namespace ksm {

/// Lets 2 to 10 players play. Nothing of any player changes, but the place of the trade labels.
void SetPlayerCount(Game& game, int players);

/// Makes `race` the player's race: technology costs, Enviro Comp. with what it enables, and the
/// home planets, after all planets that the player held have gone back to the pool.
void ChooseRace(Game& game, int player, Race race);
/// Gives the player the base costs of the present race.
void SetCostsOfRace(PlayerRecord& player);
/// Gives every loaded planet of exactly this name to the player, whoever owned it.
void AssignPlanetByName(Game& game, std::string_view name, int player);

/// Ends setup for good, at this time in milliseconds since 1970.
void StartGame(Game& game, std::int64_t now);

} // namespace ksm
