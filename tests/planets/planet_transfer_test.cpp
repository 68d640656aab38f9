#include "planets/planet_list_file.h"
#include "planets/planet_transfer.h"

#include <algorithm>
#include <gtest/gtest.h>

namespace ksm {
namespace {

/// Twenty planets of the pool.
GameState GameOfTwentyPlanets() {
    GameState state;
    SetPlanets(state.Game, std::vector<PlanetRecord>(20));
    return state;
}

std::vector<int> List(const GameState& state, int owner) {
    const PlanetIndexList& list = state.Game.Player(owner).PlanetList;
    return {list.begin(), std::ranges::find(list, NoPlanet)};
}

TEST(PlanetTransfer, MovesAPlanetBetweenThePackedLists) {
    GameState state = GameOfTwentyPlanets();
    const GameState before = state;
    EXPECT_FALSE(TransferPlanet(state, 5, NeutralOwner)) << "whose it is";
    EXPECT_FALSE(TransferPlanet(state, 20, 4)) << "a row behind the last planet of a short list";
    EXPECT_EQ(state, before);
    EXPECT_TRUE(TransferPlanet(state, 0, 10) && TransferPlanet(state, 19, 10));
    EXPECT_EQ(List(state, 10), (std::vector{0, 19}));
    TransferPlanet(state, 19, 6);
    EXPECT_EQ(List(state, 10), (std::vector{0, 19})) << "from all planets the entry stays";
    state.View.BoardPlayer = 10;
    TransferPlanet(state, 0, NeutralOwner);
    EXPECT_EQ(List(state, 10), std::vector{19});
    EXPECT_EQ(List(state, NeutralOwner).back(), 0) << "appended, not sorted in";
    SetPlanets(state.Game, std::vector<PlanetRecord>(MaxPlanets));
    state.View.BoardPlayer = NeutralOwner;
    TransferPlanet(state, 7, 4);
    EXPECT_EQ(List(state, NeutralOwner).size(), 100U);
}

} // namespace
} // namespace ksm
