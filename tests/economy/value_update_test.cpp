#include "economy/explanation.h"
#include "economy/value_update.h"

#include <functional>
#include <gtest/gtest.h>

namespace ksm {
namespace {

void Give(Game& game, int player, std::initializer_list<PlanetRecord> planets) {
    for (PlanetRecord planet : planets) {
        planet.Owner = static_cast<std::uint8_t>(player);
        game.Planet(game.NumPlanets++) = planet;
    }
}

/// Player 4 owns four planets (resources 8, influence 5) and trades with player 10, who owns two.
Game TwoTraders() {
    Game game;
    game.NumPlayers = MaxPlayers;
    Give(game, 4,
         {{"Quessin", 3, 1, Specialty::Red},
          {"Ith", 2, 2, Specialty::Blue},
          {"Veran", 2, 0, Specialty::Green},
          {"Far", 1, 2}});
    Give(game, 10, {{"Morn", 9, 9}, {"Sol"}});
    Give(game, NeutralOwner, {{"Free", 50, 50, Specialty::Red}});
    game.Cell(10, 4) = Agreement;
    return game;
}

// What is different from that, in the game or for player 4, and the figures of player 4: resources,
// influence, planets, credits, and the costs (green, blue, red, yellow).
struct ValueCase {
    const char* What;
    std::function<void(Game&, PlayerRecord&)> Change;
    std::array<int, FigureCount> Figures;
};

const std::vector<ValueCase> ValueCases{
    {"nothing", [](Game&, PlayerRecord&) {}, {8, 5, 4, 10, 28, 28, 27, 30}},
    {"Enviro Comp., Pellam Tools",
     [](Game&, PlayerRecord& four) {
         four.Enviro = four.PellamTools = true;
         four.SpaceDocks = 7;
     },
     {12, 12, 4, 14, 27, 27, 26, 30}},
    {"Micro Tech., a partner outside the game",
     [](Game& game, PlayerRecord& four) {
         four.Micro = true;
         game.Cell(4, 1) = game.Cell(2, 4) = Agreement;
         game.NumPlayers = 9;
     },
     {8, 5, 4, 16, 28, 28, 27, 30}},
    {"Labour Union",
     [](Game& game, PlayerRecord& four) {
         game.Laws.LabourUnion = four.Enviro = true;
         four.SpaceDocks = 9;
     },
     {14, 8, 4, 16, 28, 28, 27, 30}},
    {"Trade Restrictions",
     [](Game& game, PlayerRecord&) {
         game.Laws.TradeRestrictions = true;
         game.Cell(4, 1) = Agreement; // with nothing
         game.Planet(0).Owner = game.Planet(1).Owner = game.Planet(2).Owner = NeutralOwner;
     },
     {1, 2, 1, 2, 30, 30, 30, 30}},
    {"Free Trade, and Orrun, for any agreements",
     [](Game& game, PlayerRecord& four) {
         game.Laws.FreeTrade = true;
         four.Race = Race::Orrun;
         game.Cell(1, 2) = game.Cell(3, 1) = Agreement;
     },
     {8, 8, 4, 15, 28, 28, 27, 30}},
    {"Altheran, for other planets than the home, which it lost",
     [](Game& game, PlayerRecord& four) {
         four.Race = Race::Altheran;
         game.Planet(0).Owner = 10;
     },
     {5, 7, 3, 8, 28, 28, 30, 30}},
    {"discounts, up to the base cost",
     [](Game& game, PlayerRecord&) {
         for (const int planet : {0, 1, 2}) {
             game.Planet(planet).Resources = 99;
         }
     },
     {298, 5, 4, 300, 0, 0, 0, 30}},
    {"modifiers, also below 0",
     [](Game& game, PlayerRecord& four) {
         game.RedModifier = 18;
         game.GreenModifier = MaxModifier;
         game.BlueModifier = game.YellowModifier = 0;
         four.YellowCost = 10;
     },
     {8, 5, 4, 10, 43, 13, 30, -5}},
};

TEST(UpdateValues, ComputesEveryFigureFromTheInputs) {
    for (const ValueCase& row : ValueCases) {
        SCOPED_TRACE(row.What);
        Game game = TwoTraders();
        row.Change(game, game.Player(4));
        UpdateValues(game);
        for (int index = 0; index < FigureCount; ++index) {
            const auto figure = static_cast<Figure>(index);
            EXPECT_EQ(ValueOf(game, 4, figure), row.Figures.at(static_cast<std::size_t>(index)))
                << index;
        }
        EXPECT_EQ(game.Player(NeutralOwner).Figures.Resources, 0);
        const Game once = game;
        UpdateValues(game);
        EXPECT_EQ(game, once) << "nothing is left over from an earlier run";
    }
}

} // namespace
} // namespace ksm
