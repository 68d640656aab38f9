#include "economy/game_setup.h"

#include "economy/tech_boxes.h"

#include <cassert>

namespace ksm {

void SetPlayerCount(Game& game, int players) {
    assert(players >= MinPlayers && players <= MaxPlayers);
    game.NumPlayers = players;
    for (int player = 1; player <= players; ++player) {
        game.Player(player).TradeRing = players;
    }
}

void ChooseRace(Game& game, int player, Race race) {
    PlayerRecord& record = game.Player(player);
    record.Race = race;
    SetCostsOfRace(record);
    for (PlanetRecord& planet : game.LoadedPlanets()) {
        if (planet.Owner == player) {
            planet.Owner = NeutralOwner;
        }
    }
    const RaceTraits& traits = TraitsOf(race);
    if (record.Enviro != traits.Enviro) {
        record.Enviro = traits.Enviro;
        UpdateTechBoxes(record);
    }
    for (const std::string_view home : traits.Homes) {
        if (!home.empty()) {
            AssignPlanetByName(game, home, player);
        }
    }
}

void SetCostsOfRace(PlayerRecord& player) {
    const RaceTraits& traits = TraitsOf(player.Race);
    player.RedCost = traits.RedCost;
    player.BlueCost = player.YellowCost = player.GreenCost = traits.OtherCosts;
}

void AssignPlanetByName(Game& game, std::string_view name, int player) {
    for (PlanetRecord& planet : game.LoadedPlanets()) {
        if (planet.Name == name) {
            planet.Owner = static_cast<std::uint8_t>(player);
        }
    }
}

void StartGame(Game& game, std::int64_t now) { game.StartTime = now; }

} // namespace ksm
