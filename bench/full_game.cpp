#include "bench/full_game.h"

namespace ksm {

namespace {

void MakePlayer(GameState& state, int player) {
    PlayerRecord& record = state.Player(player);
    record.Race = player % 2 == 0 ? Race::Altheran : Race::Orrun;
    record.SpaceDocks = MaxSpaceDocks;
    record.Enviro = record.PellamTools = record.Micro = true;
    for (int partner = 1; partner < player; ++partner) {
        state.Cell(partner, player) = Agreement;
    }
}

// Names are of several lengths, as in a planet list.
PlanetRecord MakePlanet(int number, int players) {
    return {.Name = number == 0 ? "Quessin"
                                : std::string(static_cast<std::size_t>(4 + number % 9), 'x'),
            .Resources = static_cast<std::uint8_t>(1 + number % 3),
            .Influence = static_cast<std::uint8_t>(1 + number % 2),
            .Specialty = static_cast<Specialty>(number % 4),
            .Owner = static_cast<std::uint8_t>(1 + number % players)};
}

} // namespace

GameState FullGame(int players, int planets) {
    GameState state;
    state.NumPlayers = players;
    state.NumPlanets = planets;
    state.Laws = {.LabourUnion = true,
                  .EconomicIndependence = true,
                  .FreeTrade = true,
                  .TradeRestrictions = true,
                  .OrlenHouseRules = true};
    for (int player = 1; player <= players; ++player) {
        MakePlayer(state, player);
    }
    for (int number = 0; number < planets; ++number) {
        state.Planet(number) = MakePlanet(number, players);
    }
    return state;
}

} // namespace ksm
