#include "economy/explanation.h"
#include "economy/game_setup.h"
#include "economy/turn_order.h"
#include "economy/value_update.h"
#include "model/player_labels.h"

#include <gtest/gtest.h>

namespace ksm {
namespace {

using enum Figure;
using enum Specialty;

/// Dora (4) has Ith and Veran, one of them red, and trades with Emil (10), who has three planets.
struct Explanations : testing::Test, Game {
    Explanations() {
        NumPlayers = MaxPlayers;
        for (const PlanetRecord& planet : {PlanetRecord{"Ith", 2, 1, Red, 4},
                                           {"Veran", 3, 2, None, 4},
                                           {"Caldry", 1, 0, Red, 10},
                                           {"Aldis", 0, 0, None, 10},
                                           {"Morn", 0, 0, None, 10},
                                           {"Far", 9, 9, None, 0}}) {
            Planet(NumPlanets++) = planet;
        }
        SetName(*this, 4, "Dora", "Dor");
        SetName(*this, 10, "Emil", "Emi");
        Cell(10, 4) = Agreement;
    }

    std::string Text(Figure figure) {
        UpdateValues(*this);
        return ExplanationText(*this, 4, figure);
    }

    PlayerRecord& dora = Player(4);
};

TEST_F(Explanations, OfResourcesInfluenceAndPlanets) {
    EXPECT_EQ(Text(Resources), "Resources 5 = 2 Ith\n+ 3 Veran");
    dora.PellamTools = true;
    EXPECT_EQ(Text(Resources), "Resources 7 = 2 Ith\n+ 3 Veran\n+ 2 Pellam Tools (2 planets)");
    dora.Enviro = true;
    dora.SpaceDocks = 4;
    dora.Race = Race::Orrun;
    EXPECT_EQ(Text(Influence), "Influence 8 = 1 Ith\n+ 2 Veran\n+ 4 Enviro Comp. (space docks)\n"
                               "+ 1 Orrun (agreements in play)");
    dora = {};
    dora.Race = Race::Altheran;
    EXPECT_EQ(Text(Influence),
              "Influence 5 = 1 Ith\n+ 2 Veran\n+ 2 Altheran (planets other than Quessin)");
    Laws.LabourUnion = true;
    const std::string law = "\nLabour Union: influence and resources change places";
    EXPECT_EQ(Text(Influence), "Influence 5 = 2 Ith\n+ 3 Veran" + law);
    EXPECT_EQ(Text(Figure::Planets), "Planets 2 = 1 Ith\n+ 1 Veran");
    dora.Race = Race::None;
    EXPECT_EQ(Text(Resources), "Resources 3 = 1 Ith\n+ 2 Veran" + law);
    NumPlanets = 0;
    EXPECT_EQ(Text(Resources), "Resources 0" + law);
    NumPlanets = 13;
    std::ranges::fill(LoadedPlanets(), PlanetRecord{"P", 2, 0, None, 4});
    EXPECT_EQ(Text(Influence), "Influence 26 = 26 of 13 planets" + law);
}

TEST_F(Explanations, OfCredits) {
    dora.Micro = true;
    const std::string emil = "Credits 11 = 5 resources\n+ 3 planets of Emil\n+ 3 ";
    EXPECT_EQ(Text(Credits), emil + "Micro Tech. (1 partner)");
    NumPlayers = 9;
    EXPECT_EQ(ExplanationText(*this, 4, Credits), emil + "for the number of players before");
    Laws.TradeRestrictions = Laws.FreeTrade = true;
    Cell(1, 4) = Agreement;
    Planet(5).Owner = 1;
    EXPECT_EQ(Text(Credits),
              "Credits 21 = 5 resources\n"
              "+ 1 planet of Player 1 (Trade Restrictions: 1, the smaller of 2 and 1)\n"
              "+ 2 planets of Emil (Trade Restrictions: 2, the smaller of 2 and 3)\n"
              "+ 10 Free Trade (2 partners)\n+ 3 Micro Tech. (1 partner)");
}

TEST_F(Explanations, OfCosts) {
    RedModifier = 18;
    YellowModifier = 0;
    const std::string base = "30 base cost of everybody\n";
    EXPECT_EQ(Text(RedCost), "Red cost 31 = " + base + "- 2 Ith\n+ 3 Tech Modifiers");
    EXPECT_EQ(Text(YellowCost), "Yellow cost 15 = " + base + "- 15 Tech Modifiers");
    dora.PellamTools = true;
    Planet(0).Specialty = Planet(1).Specialty = Blue;
    BlueModifier = 14;
    EXPECT_EQ(Text(BlueCost), "Blue cost 22 = " + base +
                                  "- 2 Ith\n- 3 Veran\n"
                                  "- 2 Pellam Tools (2 planets)\n- 1 Tech Modifiers");
    Planet(0) = {"Ith", 40, 0, Green, 4};
    ChooseRace(*this, 4, Race::IthVeran);
    GreenModifier = 16;
    EXPECT_EQ(Text(GreenCost), "Green cost 1 = 20 base cost of Ith-Veran\n- 40 Ith\n"
                               "- 1 Pellam Tools (1 planet)\n"
                               "+ 21 the discount is cut at the base cost\n+ 1 Tech Modifiers");
}

TEST_F(Explanations, OfDocksAndOfTiesInTheOrderOfPlay) {
    EXPECT_EQ(DockText(*this, 4), "Space Docks 1: they bring influence with Enviro Comp.");
    dora.Enviro = true;
    EXPECT_EQ(DockText(*this, 4), "Space Docks 1: 1 influence by Enviro Comp.");
    NumPlayers = 6;
    for (const auto& [player, influence, resources] :
         {std::tuple{4, 9, 5}, {5, 9, 2}, {6, 9, 2}, {1, 7, 0}, {10, -1, 0}}) {
        Player(player).Influence = influence;
        Player(player).Resources = resources;
    }
    TurnOrder(*this);
    const std::pair<int, const char*> ties[]{
        {1, "before Player 5: equal influence, more resources"},
        {2, "after Dora: equal influence, fewer resources\n"
            "before Player 6: equal influence and resources, lower player number"},
        {4, ""},
        {6, "after Player 2: equal influence and resources, higher player number"},
        {7, ""}};
    for (const auto& [place, text] : ties) {
        EXPECT_EQ(RankText(*this, place), text) << place << ": the game ends with place 6";
    }
    Laws.OrlenHouseRules = true;
    TurnOrder(*this);
    EXPECT_EQ(RankText(*this, 3),
              "after Player 6: equal influence, more resources (Orlen house rules)");
}

} // namespace
} // namespace ksm
