#include "economy/explanation.h"
#include "economy/value_update.h"

#include <functional>
#include <gtest/gtest.h>

namespace ksm {
namespace {

using enum Figure;

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

struct ValueCase {
    const char* What;
    std::function<void(Game&, PlayerRecord&)> Change; ///< of the game and of player 4
    std::vector<std::pair<Figure, int>> Figures;      ///< of player 4
};

const std::vector<ValueCase> ValueCases{
    {"planets and an agreement",
     [](Game&, PlayerRecord&) {},
     {{Resources, 8},
      {Influence, 5},
      {Planets, 4},
      {Credits, 10},
      {RedCost, 27},
      {BlueCost, 28},
      {GreenCost, 28},
      {YellowCost, 30}}},
    {"Enviro Comp.",
     [](Game&, PlayerRecord& player) {
         player.Enviro = true;
         player.SpaceDocks = 7;
     },
     {{Influence, 12}, {Resources, 8}}},
    {"Pellam Tools",
     [](Game&, PlayerRecord& player) { player.PellamTools = true; },
     {{Resources, 12}, {Credits, 14}, {RedCost, 26}, {GreenCost, 27}, {YellowCost, 30}}},
    {"Micro Tech., a partner outside the game",
     [](Game& game, PlayerRecord& player) {
         player.Micro = true;
         game.Cell(4, 1) = game.Cell(2, 4) = Agreement;
         game.NumPlayers = 9;
     },
     {{Credits, 16}}},
    {"Labour Union",
     [](Game& game, PlayerRecord& player) {
         game.Laws.LabourUnion = player.Enviro = true;
         player.SpaceDocks = 9;
     },
     {{Resources, 14}, {Influence, 8}, {Credits, 16}, {RedCost, 27}}},
    {"Trade Restrictions",
     [](Game& game, PlayerRecord&) {
         game.Laws.TradeRestrictions = true;
         game.Cell(4, 1) = Agreement; // with nothing
         game.Planet(0).Owner = game.Planet(1).Owner = game.Planet(2).Owner = NeutralOwner;
     },
     {{Resources, 1}, {Credits, 2}}},
    {"Free Trade",
     [](Game& game, PlayerRecord&) {
         game.Laws.FreeTrade = true;
         game.Cell(4, 1) = Agreement;
     },
     {{Credits, 20}}},
    {"Orrun, for any agreements",
     [](Game& game, PlayerRecord& player) {
         player.Race = Race::Orrun;
         game.Cell(1, 2) = game.Cell(3, 1) = Agreement;
     },
     {{Influence, 8}}},
    {"Altheran, for other planets than the home",
     [](Game&, PlayerRecord& player) { player.Race = Race::Altheran; },
     {{Influence, 8}}},
    {"Altheran without the home",
     [](Game& game, PlayerRecord& player) {
         player.Race = Race::Altheran;
         game.Planet(0).Owner = 10;
     },
     {{Influence, 7}}},
    {"modifiers, also below 0",
     [](Game& game, PlayerRecord& player) {
         game.RedModifier = 18;
         game.GreenModifier = MaxModifier;
         game.BlueModifier = game.YellowModifier = 0;
         player.YellowCost = 10;
     },
     {{RedCost, 30}, {GreenCost, 43}, {BlueCost, 13}, {YellowCost, -5}}},
    {"discounts, at most the base cost",
     [](Game& game, PlayerRecord& player) {
         for (PlanetRecord& planet : game.LoadedPlanets()) {
             planet.Resources = 41;
         }
         player.BlueCost = 40;
     },
     {{RedCost, 0}, {BlueCost, 0}, {GreenCost, 0}, {YellowCost, 30}, {Resources, 164}}},
};

TEST(UpdateValues, ComputesEveryFigureFromTheInputs) {
    for (const ValueCase& row : ValueCases) {
        SCOPED_TRACE(row.What);
        Game game = TwoTraders();
        row.Change(game, game.Player(4));
        UpdateValues(game);
        for (const auto& [figure, value] : row.Figures) {
            EXPECT_EQ(ValueOf(game, 4, figure), value) << static_cast<int>(figure);
        }
        const Game once = game;
        UpdateValues(game);
        EXPECT_EQ(game, once) << "nothing is left over from an earlier run";
    }
}

TEST(UpdateValues, CountsTheUnownedPlanetsAndTheAgreements) {
    Game game = TwoTraders();
    game.Cell(1, 10) = Agreement;
    game.Player(11).Figures.Resources = 7;
    UpdateValues(game);
    EXPECT_EQ(game.Player(NeutralOwner).Figures.PlanetCount, 1);
    EXPECT_EQ(game.Player(NeutralOwner).Figures.Resources, 0);
    EXPECT_EQ(game.TradeCount, 2);
    EXPECT_EQ(game.Player(11).Figures.Resources, 7) << "a slot that is never used";
}

} // namespace
} // namespace ksm
