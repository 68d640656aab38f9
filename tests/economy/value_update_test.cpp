#include "economy/value_update.h"

#include <gtest/gtest.h>

namespace ksm {
namespace {

// What a race, a technology, a law or an agreement adds is tested with its explanation.
TEST(UpdateValues, ComputesThePoolAndTenPlayersAnew) {
    Game game;
    for (const PlanetRecord& planet : {PlanetRecord{"P", 255, 250, Specialty::Red, 10},
                                       {"P", 2, 14, Specialty::Red, 10},
                                       {"P", 9, 9, Specialty::Blue, 0},
                                       {"P", 9, 9, Specialty::Blue, 0}}) {
        game.Planet(game.NumPlanets++) = planet;
    }
    game.RedModifier = 0;
    game.BlueModifier = 18;
    game.GreenModifier = MaxModifier;
    game.YellowModifier = 14;
    for (const bool labourUnion : {false, true}) {
        game.Laws.LabourUnion = labourUnion;
        for (const char* run : {"first", "a second one changes nothing"}) {
            SCOPED_TRACE(run);
            UpdateValues(game);
            const PlayerRecord& last = game.Player(10);
            EXPECT_EQ((std::array{last.Resources, last.Influence, last.Credits}),
                      (labourUnion ? std::array{264, 257, 264} : std::array{257, 264, 257}))
                << "also above one byte";
            EXPECT_EQ((std::array{last.RedTech, last.BlueTech, last.GreenTech, last.YellowTech}),
                      (std::array{-15, 33, 45, 29}));
        }
    }
    EXPECT_EQ(game.Player(NeutralOwner).PlanetCount, 2);
    EXPECT_EQ(game.Player(11), PlayerRecord()) << "slots behind the players are left alone";
}

} // namespace
} // namespace ksm
