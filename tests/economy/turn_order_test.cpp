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
         {std::tuple{1, -1, 4}, {2, 9, 2}, {3, 9, 6}, {4, 5, 4}, {10, 5, 4}}) {
        game.Player(player).Figures.Influence = influence;
        game.Player(player).Figures.Resources = resources;
    }
    game.Player(10).Name = "Jo";
    game.Player(5).Race = game.Player(10).Race = Race::Dravik; // italic without an agreement
    game.Player(6).Race = Race::Orrun;
    game.Cell(10, 4) = Agreement;
    game.NumPlayers = 2;
    EXPECT_EQ(Order(game), "3 2 4 10 5/ 6 7 8 9 1 ") << "slots outside the game are ranked, too";
    EXPECT_EQ(game.TurnOrderRows[3], (TurnOrderRow{10, "Jo", 4, 5}));
    game.Laws.OrlenHouseRules = true;
    game.Cell(5, 6) = Agreement;
    EXPECT_EQ(Order(game), "2 3 4 10 5 6 7 8 9 1 ");
}

} // namespace
} // namespace ksm
