#include "economy/value_update.h"
#include "planets/board_listing.h"

#include <gtest/gtest.h>

namespace ksm {
namespace {

/// `planets` planets, every second one owned by player 3.
GameState BoardGame(int planets) {
    GameState state;
    state.NumPlanets = planets;
    for (int planet = 0; planet < planets; planet += 2) {
        state.Planet(planet).Owner = 3;
    }
    UpdateValues(state);
    return state;
}

TEST(BoardListing, ScrollsAsFarAsTheLastPage) {
    for (const auto& [planets, owner, maximum] :
         {std::tuple{5, AllPlanets, 0}, std::tuple{12, AllPlanets, 0},
          std::tuple{101, AllPlanets, 89}, std::tuple{24, 3, 0}, std::tuple{26, 3, 1},
          std::tuple{26, 4, 0}, std::tuple{26, NeutralOwner, 1}}) {
        GameState state = BoardGame(planets);
        state.View.BoardPlayer = owner;
        state.Planet(25).Owner = 4;
        EXPECT_EQ(BoardMaximum(state), maximum)
            << planets << " of owner " << owner << ", as last counted";
    }
}

TEST(BoardListing, ListsFromThePositionInTableOrder) {
    struct Row {
        int Planets, Owner, Position;
        BoardRows Rows;
    };
    constexpr auto none = NoPlanet;
    for (const auto& [planets, owner, position, expected] :
         {Row{20, AllPlanets, 8, {8, 9, 10, 11, 12, 13, 14, 15, 16, 17, 18, 19}},
          Row{5, AllPlanets, 0, {0, 1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 11}},
          Row{26, 3, 1, {2, 4, 6, 8, 10, 12, 14, 16, 18, 20, 22, 24}},
          Row{4, 3, 0, {0, 2, none, none, none, none, none, none, none, none, none, none}}}) {
        GameState state = BoardGame(planets);
        state.View.BoardPlayer = owner;
        state.View.BoardPosition = position;
        EXPECT_EQ(ListBoard(state), expected) << planets << " of owner " << owner;
    }
}

} // namespace
} // namespace ksm
