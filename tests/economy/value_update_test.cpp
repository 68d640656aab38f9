#include "economy/value_update.h"
#include "planets/planet_list_file.h"

#include <gtest/gtest.h>

namespace ksm {
namespace {

// What a race, a technology, a law or an agreement adds is tested with its explanation.
TEST(UpdateValues, ComputesThePoolAndTenPlayersAnew) {
    Game game;
    TakePlanets(game, ReadPlanetList("P,255,250,r\rP,2,14,r\rP,9,9,b\rP,9,9,b").Planets);
    game.Planet(0).Owner = game.Planet(1).Owner = 10;
    game.RedModifier = 0;
    game.BlueModifier = 18;
    game.GreenModifier = MaxModifier;
    game.YellowModifier = 14;
    UpdateValues(game);
    const PlayerRecord& last = game.Player(10);
    EXPECT_EQ((std::array{last.Resources, last.Influence, last.Credits}),
              (std::array{257, 264, 257}))
        << "also above one byte";
    EXPECT_EQ((std::array{last.RedTech, last.BlueTech, last.GreenTech, last.YellowTech}),
              (std::array{-15, 33, 45, 29}));
    const Game once = game;
    UpdateValues(game);
    EXPECT_EQ(game, once) << "a second run changes nothing";
    EXPECT_EQ(game.Player(NeutralOwner).PlanetCount, 2);
    EXPECT_EQ(game.Player(11), PlayerRecord()) << "slots behind the players are left alone";
}

} // namespace
} // namespace ksm
