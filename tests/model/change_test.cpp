#include "economy/game_setup.h"
#include "economy/value_update.h"
#include "model/change.h"
#include "model/player_labels.h"
#include "trade/trade_laws.h"

#include <functional>
#include <gtest/gtest.h>

namespace ksm {
namespace {

Game NamedGame() {
    Game game;
    game.NumPlanets = 2;
    game.Planet(0).Name = "Quessin";
    game.Planet(1).Name = "Caldry";
    SetName(game, 4, "Dora", "Dor");
    SetName(game, 5, "Emil", "Emi");
    game.Cell(1, 5) = game.Cell(2, 5) = Agreement;
    return game;
}

TEST(DescribeChange, SaysInAFewWordsWhatWasDone) {
    const std::pair<std::function<void(Game&)>, const char*> changes[]{
        {[](Game& game) { SetPlayerCount(game, 8); }, "8 players"},
        {[](Game& game) { ChooseRace(game, 4, Race::Altheran); }, "Altheran, Dora"},
        {[](Game& game) { game.Planet(1).Owner = 10; }, "Caldry to Player 10"},
        {[](Game& game) { game.Player(4).Enviro = game.Player(4).MicroEnabled = true; },
         "Enviro Comp., Dora"},
        {[](Game& game) { game.Player(4).Micro = true; }, "Micro Tech., Dora"},
        {[](Game& game) { game.Player(10).SpaceDocks = 0; }, "Space Docks, Player 10"},
        {[](Game& game) { SetName(game, 4, "Ada", "Dor"); }, "name, Ada"},
        {[](Game& game) { SetName(game, 3, "", "PL 3"); }, "name, Player 3"},
        {[](Game& game) { SetColours(game, 4, {}); }, "colour, Dora"},
        {[](Game& game) { game.Cell(10, 1) = Agreement; }, "agreement of Player 10 and Player 1"},
        {[](Game& game) { game.Cell(2, 5) = NoAgreement; },
         "end of the agreement of Player 2 and Emil"},
        {[](Game& game) { StopTrade(game); }, "Trade Stop"},
        {[](Game& game) {
             game.Cell(1, 5) = NoAgreement;
             game.TradeInfo = "\r\n\r\nTRADE STOP!";
         },
         "Trade Stop"},
        {[](Game& game) { game.TradeStrokes.resize(1); }, "Trade Stop"},
        {[](Game& game) { game.TradeMode = TradeMode::AddPartner; }, "Add"},
        {[](Game& game) { game.TradeMode = TradeMode::RemovePartner; }, "Remove"},
        {[](Game& game) { ToggleEconomicIndependence(game); }, "Economic Independance"},
        {[](Game& game) { game.IndepFirst = 2; }, "Economic Independance"},
        {[](Game& game) { game.IndepSecond = 2; }, "Economic Independance"},
        {[](Game& game) { game.Laws.LabourUnion = true; }, "Labour Union"},
        {[](Game& game) { game.Laws.FreeTrade = true; }, "Free Trade"},
        {[](Game& game) { game.Laws.TradeRestrictions = true; }, "Trade Restrictions"},
        {[](Game& game) { game.Laws.OrlenHouseRules = true; }, "Orlen house rules"},
        {[](Game& game) { game.YellowModifier = 0; }, "Tech Modifiers"},
        {[](Game& game) { game.Planet(0).Owner = game.Planet(1).Owner = 5; },
         "Quessin to Emil and 1 more"},
        {[](Game& game) {
             ChooseRace(game, 4, Race::Altheran);
             game.Laws.LabourUnion = true;
         },
         "Altheran, Dora and 3 more"},
    };
    for (const auto& [change, words] : changes) {
        const Game before = NamedGame();
        Game after = before;
        change(after);
        UpdateValues(after);
        EXPECT_TRUE(IsChange(before, after)) << words;
        EXPECT_EQ(DescribeChange(before, after), words);
    }
}

} // namespace
} // namespace ksm
