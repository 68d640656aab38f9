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

TEST(TopOfOwner, SpreadsTheOwnersOverTheBoard) {
    const std::tuple<int, int, int> rows[]{{1, 2, 36},  {6, 6, 161}, {1, 7, 31},
                                           {7, 7, 157}, {8, 8, 157}, {10, 10, 166}};
    for (const auto& [player, players, top] : rows) {
        EXPECT_EQ(TopOfOwner(player, players), top) << player << " of " << players;
    }
}

TEST(BoardListing, ListsAnOwnerWhoCanBeSeenFromThePositionOn) {
    const std::tuple<bool, int, int, int, int, int> rows[]{
        {true, 10, 10, 10, 76, 98},
        {true, 9, 10, AllPlanets, 38, 49},
        {true, 2, NeutralOwner, NeutralOwner, 77, 99},
        {false, 10, 3, AllPlanets, 0, 11}};
    for (const auto& [started, players, owner, listed, first, last] : rows) {
        SCOPED_TRACE(testing::Message() << owner << " of " << players);
        GameState state = BoardGame(101, owner, 38);
        state.Game.StartTime = started ? 1 : 0;
        state.Game.NumPlayers = players;
        state.View.MarkedOwner = 3;
        RelistBoard(state);
        EXPECT_EQ(state.View.MarkedOwner, NoOwner);
        EXPECT_EQ(state.View.BoardPlayer, listed);
        EXPECT_EQ(ListBoard(state).front(), first);
        EXPECT_EQ(ListBoard(state).back(), last);
    }
}

} // namespace
} // namespace ksm
