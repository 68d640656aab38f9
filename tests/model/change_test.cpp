#include "economy/game_setup.h"
#include "economy/value_update.h"
#include "model/change.h"
#include "model/player_labels.h"
#include "trade/trade_laws.h"

#include <gtest/gtest.h>

namespace ksm {
namespace {

using G = Game;

Game NamedGame() {
    Game g;
    g.NumPlanets = 2;
    g.Planet(0).Name = "Quessin";
    g.Planet(1).Name = "Caldry";
    SetName(g, 4, "Dora", "Dor");
    SetName(g, 5, "Emil", "Emi");
    g.Cell(1, 5) = g.Cell(2, 5) = Agreement;
    return g;
}

TEST(DescribeChange, SaysInAFewWordsWhatWasDone) {
    const std::pair<void (*)(Game&), const char*> changes[]{
        {[](G& g) { SetPlayerCount(g, 8); }, "8 players"},
        {[](G& g) { ChooseRace(g, 4, Race::Altheran); }, "Altheran, Dora"},
        {[](G& g) { g.Planet(1).Owner = 10; }, "Caldry to Player 10"},
        {[](G& g) { g.Player(4).Enviro = g.Player(4).MicroEnabled = true; }, "Enviro Comp., Dora"},
        {[](G& g) { g.Player(4).PellamTools = true; }, "Pellam Tools, Dora"},
        {[](G& g) { g.Player(4).Micro = true; }, "Micro Tech., Dora"},
        {[](G& g) { g.Player(10).SpaceDocks = 0; }, "Space Docks, Player 10"},
        {[](G& g) { SetName(g, 4, "Ada", "Dor"); }, "name, Ada"},
        {[](G& g) { SetColours(g, 4, {}); }, "colour, Dora"},
        {[](G& g) { g.Cell(10, 1) = Agreement; }, "agreement of Player 10 and Player 1"},
        {[](G& g) { g.Cell(1, 5) = NoAgreement; }, "end of the agreement of Player 1 and Emil"},
        {[](G& g) { StopTrade(g); }, "Trade Stop"},
        {[](G& g) { g.TradeMode = TradeMode::AddPartner; }, "Add"},
        {[](G& g) { ToggleEconomicIndependence(g); }, "Economic Independance"},
        {[](G& g) { g.Laws.LabourUnion = true; }, "Labour Union"},
        {[](G& g) { g.Laws.OrlenHouseRules = true; }, "Orlen house rules"},
        {[](G& g) { g.Laws.TradeRestrictions = true; }, "Trade Restrictions"},
        {[](G& g) { g.YellowModifier = 0; }, "Tech Modifiers"},
        {[](G& g) { g.Planet(0).Owner = g.Planet(1).Owner = 5; }, "Quessin to Emil and 1 more"},
    };
    for (const auto& [change, words] : changes) {
        const Game before = NamedGame();
        Game after = before;
        change(after);
        UpdateValues(after);
        EXPECT_TRUE(IsChange(before, after)) << words;
        EXPECT_EQ(DescribeChange(before, after), words);
    }
    Game followed = NamedGame();
    followed.Player(3).Figures.Influence = 9;
    followed.TurnOrderRows[0].Player = 4;
    EXPECT_FALSE(IsChange(NamedGame(), followed)) << "what follows from an input is none";
}

} // namespace
} // namespace ksm
