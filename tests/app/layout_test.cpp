#include "app/layout.h"

#include <gtest/gtest.h>

namespace ksm {
namespace {

TEST(Layout, SpreadsTheColumnsOverTheTable) {
    const std::tuple<int, std::vector<int>, int, int> rows[]{
        {2, {80, 360}, 279, 120},
        {3, {80, 266, 453}, 185, 73},
        {4, {80, 220, 360, 500}, 139, 50},
        {6, {80, 173, 266, 360, 453, 546}, 92, 26},
        {10, {80, 136, 192, 248, 304, 360, 416, 472, 528, 584}, 55, 8}};
    for (const auto& [players, lefts, nameWidth, figureOffset] : rows) {
        const PlayerLayout layout = LayoutForPlayerCount(players);
        for (int player = 1; player <= players; ++player) {
            const int left = lefts.at(static_cast<std::size_t>(player - 1));
            EXPECT_EQ(layout.Columns[player],
                      (ColumnPlace{left, nameWidth, nameWidth - 1, left + figureOffset}))
                << "player " << player << " of " << players;
        }
    }
}

TEST(Layout, SpacesTheOwnersOnTheBoard) {
    for (const auto& [players, first, last] : {std::tuple{2, 36, 61}, std::tuple{6, 36, 161},
                                               std::tuple{7, 31, 157}, std::tuple{10, 31, 166}}) {
        const PlayerLayout layout = LayoutForPlayerCount(players);
        EXPECT_EQ(layout.OwnerTops[1], first);
        EXPECT_EQ(layout.OwnerTops[players], last) << players;
    }
}

// Whatever was mistyped in the table of the rings would put labels on one another or off the panel.
TEST(Layout, TheRingsRunClockwiseInsideThePanelWithoutOverlap) {
    for (int players = MinPlayers; players <= MaxPlayers; ++players) {
        int turns = 0;
        for (int player = 1; player <= players; ++player) {
            const RingPlace place = PlaceInRing(player, players);
            EXPECT_TRUE(place.Left >= 5 && place.Left + 30 <= 230) << players << ", " << player;
            EXPECT_TRUE(place.Top >= 21 && place.Top + 18 <= 178) << players << ", " << player;
            const RingPlace next = PlaceInRing(player % players + 1, players);
            EXPECT_TRUE(std::abs(next.Left - place.Left) >= 30 ||
                        std::abs(next.Top - place.Top) >= 18);
            // Seen from the middle of the ring the next label lies to the right hand.
            const int cross =
                (place.Left - 101) * (next.Top - 89) - (place.Top - 89) * (next.Left - 101);
            turns += cross > 0 ? 1 : 0;
        }
        EXPECT_TRUE(players == 2 || turns == players) << players;
    }
}

} // namespace
} // namespace ksm
