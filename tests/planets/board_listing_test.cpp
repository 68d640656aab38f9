#include "economy/value_update.h"
#include "planets/board_listing.h"
#include "planets/owner_place.h"

#include <gtest/gtest.h>

namespace ksm {
namespace {

/// `planets` planets, every second one owned by player 10, seen from a place of a list.
GameState BoardGame(int planets, int owner, int position = 0) {
    GameState state;
    state.Game.NumPlanets = planets;
    for (int planet = 0; planet < planets; planet += 2) {
        state.Game.Planet(planet).Owner = 10;
    }
    UpdateValues(state.Game);
    state.View.BoardPlayer = owner;
    state.View.BoardPosition = position;
    return state;
}

TEST(BoardListing, ListsFromThePositionInTableOrder) {
    const std::tuple<int, int, int, int, int> rows[]{
        {20, AllPlanets, 8, 8, 19},
        {5, AllPlanets, 0, 0, 11}, // planets that are not there
        {101, 10, 39, 78, 100},
        {4, NeutralOwner, 0, 1, NoPlanet},
        {23, 10, 0, 0, 22}};
    for (const auto& [planets, owner, position, first, last] : rows) {
        const BoardRows listed = ListBoard(BoardGame(planets, owner, position));
        EXPECT_EQ(listed.front(), first) << planets << " planets";
        EXPECT_EQ(listed.back(), last) << planets << " planets";
    }
}

TEST(TopOfOwner, SpreadsTheOwnersOverTheBoard) {
    const std::tuple<int, int, int> rows[]{{1, 2, 36},  {6, 6, 161}, {1, 7, 31},
                                           {7, 7, 157}, {8, 8, 157}, {10, 10, 166}};
    for (const auto& [player, players, top] : rows) {
        EXPECT_EQ(TopOfOwner(player, players), top) << player << " of " << players;
    }
}

TEST(BoardListing, ListsAnewOnlyAnOwnerWhoCanBeSeen) {
    for (const auto& [started, players, owner, listed] :
         {std::tuple{true, 10, 10, 10}, std::tuple{true, 9, 10, AllPlanets},
          std::tuple{true, 2, NeutralOwner, NeutralOwner}, std::tuple{false, 10, 3, AllPlanets}}) {
        GameState state = BoardGame(101, owner, 5);
        state.Game.StartTime = started ? 1 : 0;
        state.Game.NumPlayers = players;
        state.View.MarkedOwner = 3;
        RelistBoard(state);
        EXPECT_EQ(state.View.MarkedOwner, NoOwner);
        EXPECT_EQ(state.View.BoardPlayer, listed) << owner << " of " << players;
    }
}

} // namespace
} // namespace ksm
