#include "economy/explanation.h"
#include "economy/turn_order.h"
#include "economy/value_update.h"
#include "model/player_labels.h"
#include "planets/planet_list_file.h"

#include <gtest/gtest.h>

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
        Cell(10, 4) = Agreement;
    }

    std::string Text(Figure figure, int player = 4) {
        UpdateValues(*this);
        return ExplanationText(*this, player, figure);
    }

    PlayerRecord& dora = Player(4);
};

TEST_F(Explanations, NameWhatAFigureIsMadeOf) {
    dora.PellamTools = dora.Enviro = dora.Micro = true;
    dora.SpaceDocks = 4;
    dora.Race = Race::Orrun;
    RedModifier = 18;
    BlueModifier = 14;
    Planet(1).Resources = 40;
    Cell(1, 2) = Agreement;
    EXPECT_EQ(Text(Influence), "Influence 9 = 1 Quessin\n+ 2 Ith\n+ 4 Enviro Comp. (space docks)\n"
                               "+ 2 Orrun (agreements in play)");
    EXPECT_EQ(Text(BlueCost),
              "Blue cost -1 = 30 base cost of Orrun\n- 40 Ith\n- 1 Pellam Tools (1 planet)\n"
              "+ 11 (the discount is limited to the base cost)\n"
              "- 1 Tech Modifiers");
    NumPlayers = 9;
    EXPECT_EQ(ExplanationText(*this, 4, Credits),
              "Credits 53, computed for another number of players");
    Laws = {.LabourUnion = true, .FreeTrade = true, .TradeRestrictions = true};
    dora.Race = Race::Altheran;
    Cell(1, 4) = Agreement;
    Planet(7).Owner = 1;
    const std::string law = "\nLabour Union: influence and resources are swapped";
    EXPECT_EQ(Text(Credits),
              "Credits 26 = 9 resources\n"
              "+ 1 planet of Player 1 (Trade Restrictions: 1, the smaller of 3 and 1)\n"
              "+ 3 planets of Player 10 (Trade Restrictions: 3, the smaller of 3 and 4)\n"
              "+ 10 Free Trade (2 partners)\n+ 3 Micro Tech. (1 partner)" +
                  law);
}

TEST_F(Explanations, OfDocksAndOfTiesInTheOrderOfPlay) {
    dora.Enviro = Laws.LabourUnion = true;
    EXPECT_EQ(DockText(*this, 4), "Space Docks 1 count as resources (Labour Union)");
    for (const auto& [player, influence, resources] : {std::tuple{4, 9, 5}, {5, 9, 2}, {6, 9, 2}}) {
        Player(player).Figures.Influence = influence;
        Player(player).Figures.Resources = resources;
    }
    TurnOrder(*this);
    EXPECT_EQ(RankText(*this, 1), "before Player 5: equal influence, more resources");
    EXPECT_EQ(RankText(*this, 2),
              "after Dora: equal influence, fewer resources\n"
              "before Player 6: equal influence and resources, lower player number");
}

} // namespace
} // namespace ksm
