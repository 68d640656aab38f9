#include "economy/turn_order.h"

#include <gtest/gtest.h>

namespace ksm {
namespace {

std::vector<int> Order(Game& game) {
    TurnOrder(game);
    std::vector<int> players;
    for (const TurnOrderRow& row : game.TurnOrderRows) {
        players.push_back(row.Player);
    }
    return players;
}

void SetFigures(Game& game, int player, int influence, int resources) {
    game.Player(player).Influence = influence;
    game.Player(player).Resources = resources;
}

TEST(TurnOrder, RanksByInfluenceThenByResourcesThenByNumber) {
    Game game;
    SetFigures(game, 1, 5, 4);
    SetFigures(game, 2, 9, 2);
    SetFigures(game, 3, 9, 6);
    SetFigures(game, 10, 5, 4);
    game.Player(10).Name = "Jo";
    EXPECT_EQ(Order(game), (std::vector{3, 2, 1, 10, 4, 5, 6, 7, 8, 9}));
    EXPECT_EQ(game.TurnOrderRows[3], (TurnOrderRow{10, "Jo", 4, 5}));
    game.Laws.OrlenHouseRules = true;
    EXPECT_EQ(Order(game), (std::vector{2, 3, 1, 10, 4, 5, 6, 7, 8, 9}));
    game.NumPlayers = 2;
    SetFigures(game, 1, 0, 5);
    EXPECT_EQ(Order(game).back(), 1) << "behind the slots outside the game";
}

TEST(TurnOrder, OnlyADravikPlayerWithoutAgreementIsItalic) {
    Game game;
    game.Player(4).Race = Race::Dravik;
    game.Player(5).Race = Race::Orrun;
    const auto expectItalic = [&game](int italic) {
        TurnOrder(game);
        for (const TurnOrderRow& row : game.TurnOrderRows) {
            EXPECT_EQ(row.Italic, row.Player == italic) << row.Player;
        }
    };
    expectItalic(4);
    game.Cell(5, 6) = Agreement;
    expectItalic(4);
    game.Cell(10, 4) = Agreement; // whichever of the two made the agreement
    expectItalic(0);
}

} // namespace
} // namespace ksm
