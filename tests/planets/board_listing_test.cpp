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
    constexpr auto none = NoPlanet;
    const std::pair<GameState, BoardRows> rows[]{
        {BoardGame(20, AllPlanets, 8), {8, 9, 10, 11, 12, 13, 14, 15, 16, 17, 18, 19}},
        {BoardGame(5, AllPlanets), {0, 1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 11}},
        {BoardGame(101, 10), {0, 2, 4, 6, 8, 10, 12, 14, 16, 18, 20, 22}},
        {BoardGame(101, 10, 39), {78, 80, 82, 84, 86, 88, 90, 92, 94, 96, 98, 100}},
        {BoardGame(4, NeutralOwner),
         {1, 3, none, none, none, none, none, none, none, none, none, none}},
        {BoardGame(4, 10), {0, 2, none, none, none, none, none, none, none, none, none, none}}};
    for (const auto& [state, expected] : rows) {
        EXPECT_EQ(ListBoard(state), expected) << state.Game.NumPlanets << " planets";
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
        RelistBoard(state);
        EXPECT_EQ(state.View.BoardPlayer, listed) << owner << " of " << players;
    }
}

} // namespace
} // namespace ksm
