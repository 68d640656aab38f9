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

void SetFigures(GameState& state, int player, int influence, int resources) {
    state.Player(player).Influence = influence;
    state.Player(player).Resources = resources;
}

TEST(TurnOrder, RanksByInfluenceThenByResourcesThenByNumber) {
    GameState state;
    SetFigures(state, 1, 5, 4);
    SetFigures(state, 2, 9, 2);
    SetFigures(state, 3, 9, 6);
    SetFigures(state, 9, 5, 4);
    EXPECT_EQ(Order(state), (std::vector{3, 2, 1, 9, 4, 5, 6, 7, 8, 10}));
    state.Laws.OrlenHouseRules = true;
    EXPECT_EQ(Order(state), (std::vector{2, 3, 1, 9, 4, 5, 6, 7, 8, 10}));
    state.NumPlayers = 2;
    SetFigures(state, 1, 0, 5);
    EXPECT_EQ(Order(state).back(), 1) << "behind the slots outside the game";
}

TEST(TurnOrder, OnlyADravikPlayerWithoutAgreementIsItalic) {
    GameState state;
    state.Player(4).Race = Race::Dravik;
    state.Player(5).Race = Race::Orrun;
    const auto expectItalic = [&state](int italic) {
        TurnOrder(state);
        for (const TurnOrderRow& row : state.TurnOrderRows) {
            EXPECT_EQ(row.Italic, row.Player == italic) << row.Player;
        }
    };
    expectItalic(4);
    state.Cell(5, 6) = Agreement;
    expectItalic(4);
    state.Cell(9, 4) = Agreement; // whichever of the two made the agreement
    expectItalic(0);
}

} // namespace
} // namespace ksm
