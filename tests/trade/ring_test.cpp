#include "model/bounds.h"
#include "trade/ring.h"

#include <gtest/gtest.h>

namespace ksm {
namespace {

// A figure of the ring that is mistyped or exchanged changes the sum of the places, each times its
// player's number.
TEST(Ring, HasEveryPlaceOfTwoToTenPlayers) {
    const Point sums[]{{375, 267},   {542, 702},   {970, 1122},  {1707, 1583}, {2385, 2277},
                       {3380, 2992}, {4020, 3892}, {5065, 4813}, {6035, 6015}};
    for (int players = MinPlayers; players <= MaxPlayers; ++players) {
        Point sum;
        for (int player = 1; player <= players; ++player) {
            const Point place = PlaceInRing(player, players);
            sum = {sum.X + player * place.X, sum.Y + player * place.Y};
        }
        EXPECT_EQ(sum, sums[players - MinPlayers])
            << players << " players: " << sum.X << ", " << sum.Y;
    }
}

} // namespace
} // namespace ksm
