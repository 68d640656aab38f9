#include "model/bounds.h"
#include "trade/ring.h"

#include <cstdlib>
#include <gtest/gtest.h>

namespace ksm {
namespace {

TEST(Ring, RunsClockwiseInsideThePanelWithoutOverlap) {
    // A mistyped or exchanged figure changes the sum of the places, each times its player's number.
    const Point sums[]{{375, 267},   {542, 702},   {970, 1122},  {1707, 1583}, {2385, 2277},
                       {3380, 2992}, {4020, 3892}, {5065, 4813}, {6035, 6015}};
    for (int players = MinPlayers; players <= MaxPlayers; ++players) {
        Point sum;
        for (int player = 1; player <= players; ++player) {
            SCOPED_TRACE(testing::Message() << "player " << player << " of " << players);
            const Point place = PlaceInRing(player, players);
            const Point next = PlaceInRing(player % players + 1, players);
            sum = {sum.X + player * place.X, sum.Y + player * place.Y};
            EXPECT_TRUE(place.X >= 5 && place.X + 30 <= 230 && place.Y >= 21 && place.Y <= 160);
            EXPECT_TRUE(std::abs(next.X - place.X) >= 30 || std::abs(next.Y - place.Y) >= 18);
            // Seen from the middle of the ring the next label lies to the right hand.
            const int cross = (place.X - 101) * (next.Y - 89) - (place.Y - 89) * (next.X - 101);
            EXPECT_TRUE(players == 2 || cross > 0);
        }
        EXPECT_EQ(sum, sums[players - MinPlayers])
            << players << " players: " << sum.X << ", " << sum.Y;
    }
}

} // namespace
} // namespace ksm
