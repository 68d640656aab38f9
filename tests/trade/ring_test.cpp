#include "model/bounds.h"
#include "trade/ring.h"

#include <cstdlib>
#include <gtest/gtest.h>

namespace ksm {
namespace {

// Whatever was mistyped in the table of the rings would put labels on one another or off the panel.
TEST(Ring, RunsClockwiseInsideThePanelWithoutOverlap) {
    for (int players = MinPlayers; players <= MaxPlayers; ++players) {
        int turns = 0;
        for (int player = 1; player <= players; ++player) {
            const Point place = PlaceInRing(player, players);
            EXPECT_TRUE(place.X >= 5 && place.X + 30 <= 230) << players << ", " << player;
            EXPECT_TRUE(place.Y >= 21 && place.Y + 18 <= 178) << players << ", " << player;
            const Point next = PlaceInRing(player % players + 1, players);
            EXPECT_TRUE(std::abs(next.X - place.X) >= 30 || std::abs(next.Y - place.Y) >= 18);
            // Seen from the middle of the ring the next label lies to the right hand.
            const int cross = (place.X - 101) * (next.Y - 89) - (place.Y - 89) * (next.X - 101);
            turns += cross > 0 ? 1 : 0;
        }
        EXPECT_TRUE(players == 2 || turns == players) << players;
    }
}

} // namespace
} // namespace ksm
