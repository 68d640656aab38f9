#include "economy/explanation.h"
#include "economy/game_setup.h"
#include "economy/turn_order.h"
#include "economy/value_update.h"
#include "model/player_labels.h"
#include "planets/planet_list_file.h"

#include <gtest/gtest.h>
#include <random>

namespace ksm {
namespace {

using enum Figure;

/// Dora (4) has three planets, one of each specialty, and trades with Emil (10), who has four.
struct Explanations : testing::Test, Game {
    Explanations() {
        NumPlayers = MaxPlayers;
        SetPlanets(*this, *ReadPlanetList("Quessin,2,1,r\rIth,3,2,b\rVeran,1,0,g\r"
                                          "Caldry,1,0,r\rAldis\rMorn\rSol\rFar,9,9"));
        for (int planet = 0; planet < 7; ++planet) {
            Planet(planet).Owner = planet < 3 ? 4 : 10;
        }
        SetName(*this, 4, "Dora", "Dor");
        SetName(*this, 10, "Emil", "Emi");
        Cell(10, 4) = Agreement;
    }

    std::string Text(Figure figure, int player = 4) {
        UpdateValues(*this);
        return ExplanationText(*this, player, figure);
    }

    PlayerRecord& dora = Player(4);
};

TEST_F(Explanations, OfResourcesInfluenceAndPlanets) {
    const std::string resources = " = 2 Quessin\n+ 3 Ith\n+ 1 Veran";
    const std::string influence = " = 1 Quessin\n+ 2 Ith";
    const std::string law = "\nLabour Union: influence and resources are swapped";
    EXPECT_EQ(Text(Figure::Planets), "Planets 3 = 1 Quessin\n+ 1 Ith\n+ 1 Veran");
    EXPECT_EQ(Text(Resources), "Resources 6" + resources);
    dora.PellamTools = true;
    EXPECT_EQ(Text(Resources), "Resources 9" + resources + "\n+ 3 Pellam Tools (3 planets)");
    dora.Enviro = true;
    dora.SpaceDocks = 4;
    dora.Race = Race::Orrun;
    Cell(1, 2) = Agreement;
    EXPECT_EQ(Text(Influence), "Influence 9" + influence +
                                   "\n+ 4 Enviro Comp. (space docks)\n"
                                   "+ 2 Orrun (agreements in play)");
    Laws.LabourUnion = true;
    dora = PlayerRecord();
    dora.Race = Race::Altheran;
    EXPECT_EQ(Text(Influence), "Influence 6" + resources + law);
    EXPECT_EQ(Text(Resources),
              "Resources 5" + influence + "\n+ 2 Altheran (planets other than Quessin)" + law);
    EXPECT_EQ(Text(Credits), "Credits 9 = 5 resources\n+ 4 planets of Emil" + law);
    NumPlanets = 0;
    EXPECT_EQ(Text(Resources), "Resources 0" + law);
    NumPlanets = 13;
    std::ranges::fill(LoadedPlanets(), PlanetRecord{"P", 2, 0, Specialty::Red, 4});
    EXPECT_EQ(Text(Influence), "Influence 26 = 26 from planets" + law);
    EXPECT_EQ(Text(Figure::Planets), "Planets 13 = 13 planets (a click on the owner lists them)");
    EXPECT_EQ(Text(RedCost), "Red cost 4 = 30 base cost of Altheran\n- 26 from planets");
}

TEST_F(Explanations, OfCredits) {
    EXPECT_EQ(Text(Credits, 10), "Credits 4 = 1 resource\n+ 3 planets of Dora");
    const std::string emil = " = 6 resources\n+ 4 planets of Emil";
    dora.Micro = true;
    EXPECT_EQ(Text(Credits), "Credits 13" + emil + "\n+ 3 Micro Tech. (1 partner)");
    NumPlayers = 9;
    EXPECT_EQ(ExplanationText(*this, 4, Credits),
              "Credits 13, computed for another number of players");
    EXPECT_EQ(Text(Credits), "Credits 10" + emil);
    Laws.TradeRestrictions = Laws.FreeTrade = true;
    Cell(1, 4) = Agreement;
    Planet(7).Owner = 1;
    EXPECT_EQ(Text(Credits),
              "Credits 23 = 6 resources\n"
              "+ 1 planet of Player 1 (Trade Restrictions: 1, the smaller of 3 and 1)\n"
              "+ 3 planets of Emil (Trade Restrictions: 3, the smaller of 3 and 4)\n"
              "+ 10 Free Trade (2 partners)\n+ 3 Micro Tech. (1 partner)");
}

TEST_F(Explanations, OfCosts) {
    RedModifier = 18;
    YellowModifier = 0;
    const std::string base = "30 base cost\n";
    EXPECT_EQ(Text(RedCost), "Red cost 31 = " + base + "- 2 Quessin\n+ 3 Tech Modifiers");
    EXPECT_EQ(Text(YellowCost), "Yellow cost 15 = " + base + "- 15 Tech Modifiers");
    dora.PellamTools = true;
    Planet(0).Specialty = Specialty::Blue;
    BlueModifier = 14;
    EXPECT_EQ(Text(BlueCost), "Blue cost 22 = " + base +
                                  "- 2 Quessin\n- 3 Ith\n"
                                  "- 2 Pellam Tools (2 planets)\n- 1 Tech Modifiers");
    ChooseRace(*this, 4, Race::IthVeran);
    Planet(2).Resources = 40;
    EXPECT_EQ(Text(GreenCost), "Green cost 0 = 20 base cost of Ith-Veran\n- 40 Veran\n"
                               "- 1 Pellam Tools (1 planet)\n"
                               "+ 21 (the discount is limited to the base cost)");
    EXPECT_EQ(Text(RedCost), "Red cost 43 = 40 base cost of Ith-Veran\n+ 3 Tech Modifiers");
}

TEST_F(Explanations, OfDocksAndOfTiesInTheOrderOfPlay) {
    EXPECT_EQ(DockText(*this, 4), "Space Docks 1 would count as influence with Enviro Comp.");
    dora.Enviro = true;
    EXPECT_EQ(DockText(*this, 4), "Space Docks 1 count as influence");
    Laws.LabourUnion = true;
    EXPECT_EQ(DockText(*this, 4), "Space Docks 1 count as resources (Labour Union)");
    NumPlayers = 6;
    for (const auto& [player, influence, resources] :
         {std::tuple{4, 9, 5}, {5, 9, 2}, {6, 9, 2}, {1, 7, 0}, {10, -1, 0}}) {
        Player(player).Figures.Influence = influence;
        Player(player).Figures.Resources = resources;
    }
    TurnOrder(*this);
    EXPECT_EQ(RankText(*this, 1), "before Player 5: equal influence, more resources");
    EXPECT_EQ(RankText(*this, 2),
              "after Dora: equal influence, fewer resources\n"
              "before Player 6: equal influence and resources, lower player number");
    EXPECT_EQ(RankText(*this, 4) + RankText(*this, 7), "") << "the game ends with place 6";
    EXPECT_EQ(RankText(*this, 6),
              "after Player 2: equal influence and resources, higher player number");
    Laws.OrlenHouseRules = true;
    TurnOrder(*this);
    EXPECT_EQ(RankText(*this, 3),
              "after Player 6: equal influence, more resources (Orlen house rules)");
}

/// A game in which everything that adds to a figure is there or not by chance.
Game RandomGame(std::mt19937& random) {
    const auto pick = [&](int most) {
        return static_cast<std::uint8_t>(std::uniform_int_distribution(0, most)(random));
    };
    Game game;
    game.NumPlanets = 40;
    for (PlanetRecord& planet : game.LoadedPlanets()) {
        planet = {pick(9) == 0 ? "Quessin" : "P", pick(9), pick(9), static_cast<Specialty>(pick(3)),
                  pick(MaxPlayers)};
    }
    for (int player = 2; player <= MaxPlayers; ++player) {
        PlayerRecord& record = game.Player(player);
        record.Race = static_cast<Race>(pick(RaceCount));
        SetCostsOfRace(record);
        record.SpaceDocks = pick(MaxSpaceDocks);
        record.Enviro = pick(1) == 1;
        record.PellamTools = pick(1) == 1;
        record.Micro = pick(1) == 1;
        game.Cell(player, 1 + pick(player - 2)) = pick(1) == 1 ? Agreement : NoAgreement;
    }
    game.Laws = {
        .LabourUnion = pick(1) == 1, .FreeTrade = pick(1) == 1, .TradeRestrictions = pick(1) == 1};
    game.RedModifier = pick(MaxModifier);
    game.YellowModifier = pick(MaxModifier);
    return game;
}

TEST(Explanation, ThePartsAddUpToTheFigureInTenThousandRandomGames) {
    std::mt19937 random(10);
    for (int number = 0; number < 10'000; ++number) {
        Game game = RandomGame(random);
        UpdateValues(game);
        for (int player = 1; player <= MaxPlayers; ++player) {
            for (int index = 0; index < FigureCount; ++index) {
                int sum = 0;
                for (const auto& part : Explain(game, player, static_cast<Figure>(index)).Parts) {
                    sum += part.Amount;
                }
                ASSERT_EQ(sum, ValueOf(game, player, static_cast<Figure>(index)))
                    << "figure " << index << " of player " << player << ", game " << number;
            }
        }
    }
}

} // namespace
} // namespace ksm
