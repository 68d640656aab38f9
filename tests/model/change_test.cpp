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
    game.Cell(1, 5) = Agreement;
    game.Cell(2, 5) = Agreement;
    return game;
}

TEST(DescribeChange, SaysInAFewWordsWhatWasDone) {
    const std::pair<std::function<void(Game&)>, const char*> changes[]{
        {[](Game& game) { SetPlayerCount(game, 8); }, "8 players"},
        {[](Game& game) { ChooseRace(game, 4, Race::Altheran); }, "Altheran, Dora"},
        {[](Game& game) { game.Planet(1).Owner = 5; }, "Caldry to Emil"},
        {[](Game& game) { game.Planet(1).Owner = 10; }, "Caldry to Player 10"},
        {[](Game& game) { game.Player(4).PellamTools = true; }, "Pellam Tools, Dora"},
        {[](Game& game) { game.Player(4).Enviro = game.Player(4).MicroEnabled = true; },
         "Enviro Comp., Dora"},
        {[](Game& game) { game.Player(10).SpaceDocks = 0; }, "Space Docks, Player 10"},
        {[](Game& game) { SetName(game, 4, "Ada", "Ada"); }, "name, Ada"},
        {[](Game& game) { SetName(game, 4, "", ""); }, "name, Player 4"},
        {[](Game& game) { SetColours(game, 4, {}); }, "colour, Dora"},
        {[](Game& game) { game.Cell(4, 5) = Agreement; }, "agreement of Dora and Emil"},
        {[](Game& game) { game.Cell(2, 5) = NoAgreement; }, "agreement of Player 2 and Emil"},
        {[](Game& game) { TStop_Click(game); }, "Trade Stop"},
        {[](Game& game) { game.TradeMode = TradeMode::AddPartner; }, "Add"},
        {[](Game& game) { game.TradeMode = TradeMode::RemoveFirst; }, "Remove"},
        {[](Game& game) { Tres_Click(game); }, "Economic Independance"},
        {[](Game& game) { TFree_Click(game); }, "Free Trade"},
        {[](Game& game) { game.Laws.OrlenHouseRules = true; }, "Orlen house rules"},
        {[](Game& game) { game.YellowModifier = game.RedModifier = 0; }, "Tech Modifiers"},
        {[](Game& game) { game.Planet(0).Owner = game.Planet(1).Owner = 5; }, "Load Game"},
        {[](Game& game) {
             ChooseRace(game, 4, Race::Altheran);
             game.Laws.LabourUnion = true;
         },
         "Load Game"},
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

TEST(IsChange, NotByWhatIsOnlySaidOrComputed) {
    const Game before = NamedGame();
    Game after = before;
    UpdateValues(after);
    after.TradeInfo = "P2 and P1 already have a TA";
    after.TradeFirst = 3;
    after.TurnOrderRows[0].Name = "Ada";
    EXPECT_FALSE(IsChange(before, after));
}

} // namespace
} // namespace ksm
