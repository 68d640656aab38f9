#include "bench/full_game.h"

namespace ksm {

namespace {

void MakePlayer(Game& game, int player) {
    PlayerRecord& record = game.Player(player);
    record.Race = player % 2 == 0 ? Race::Altheran : Race::Orrun;
    record.SpaceDocks = MaxSpaceDocks;
    record.Enviro = record.PellamTools = record.Micro = true;
    for (int partner = 1; partner < player; ++partner) {
        game.Cell(partner, player) = Agreement;
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

Game FullGame(int players, int planets) {
    Game game;
    game.NumPlayers = players;
    game.NumPlanets = planets;
    game.Laws = {.LabourUnion = true,
                 .EconomicIndependence = true,
                 .FreeTrade = true,
                 .TradeRestrictions = true,
                 .OrlenHouseRules = true};
    for (int player = 1; player <= players; ++player) {
        MakePlayer(game, player);
    }
    for (int number = 0; number < planets; ++number) {
        game.Planet(number) = MakePlanet(number, players);
    }
    return game;
}

} // namespace ksm
