#include "economy/turn_order.h"

#include <gtest/gtest.h>

namespace ksm {
namespace {

/// The players in their order, those in italics marked.
std::string Order(Game& game) {
    TurnOrder(game);
    std::string players;
    for (const TurnOrderRow& row : game.TurnOrderRows) {
        players.append(std::to_string(row.Player)).append(row.Italic ? "/ " : " ");
    }
    return players;
}

TEST(TurnOrder, RanksByInfluenceThenByResourcesThenByNumber) {
    Game game;
    for (const auto& [player, influence, resources] :
         {std::tuple{1, 5, 4}, {2, 9, 2}, {3, 9, 6}, {10, 5, 4}}) {
        game.Player(player).Figures.Influence = influence;
        game.Player(player).Figures.Resources = resources;
    }
    game.Player(10).Name = "Jo";
    EXPECT_EQ(Order(game), "3 2 1 10 4 5 6 7 8 9 ");
    EXPECT_EQ(game.TurnOrderRows[3], (TurnOrderRow{10, "Jo", 4, 5}));
    game.Laws.OrlenHouseRules = true;
    EXPECT_EQ(Order(game), "2 3 1 10 4 5 6 7 8 9 ");
    game.NumPlayers = 2;
    game.Player(1).Figures.Influence = -1;
    EXPECT_EQ(Order(game), "2 3 10 4 5 6 7 8 9 1 ") << "behind the slots outside the game";
}

TEST(TurnOrder, OnlyADravikPlayerWithoutAgreementIsItalic) {
    Game game;
    game.Player(4).Race = Race::Dravik;
    game.Player(5).Race = Race::Orrun;
    game.Cell(5, 6) = Agreement;
    EXPECT_EQ(Order(game), "1 2 3 4/ 5 6 7 8 9 10 ");
    game.Cell(10, 4) = Agreement;
    EXPECT_EQ(Order(game), "1 2 3 4 5 6 7 8 9 10 ") << "whichever of the two made the agreement";
}

} // namespace
} // namespace ksm
