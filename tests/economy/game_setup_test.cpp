#include "economy/game_setup.h"
#include "planets/planet_list_file.h"

#include <gtest/gtest.h>

namespace ksm {
namespace {

TEST(ChooseRace, ReleasesEveryPlanetAndTakesTheHomesFromWhoeverHasThem) {
    Game game;
    SetPlanets(game, *ReadPlanetList("Ith\rVeran\rVeran\rFar"));
    ChooseRace(game, 1, Race::IthVeran);
    EXPECT_TRUE(game.Player(1).Enviro && game.Player(1).MicroEnabled);
    game.Planet(3).Owner = 2;
    ChooseRace(game, 2, Race::IthVeran);
    std::string owners;
    for (const PlanetRecord& planet : game.LoadedPlanets()) {
        owners += std::to_string(planet.Owner);
    }
    EXPECT_EQ(owners, "2220") << "a name on the list twice is a home twice";
    EXPECT_EQ(game.Player(1).RedCost, 40) << "whose planets are taken keeps the race";
    EXPECT_EQ(game.Player(1).BlueCost, 20);
}

} // namespace
} // namespace ksm
