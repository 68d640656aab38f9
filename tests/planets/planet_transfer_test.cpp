#include "planets/planet_transfer.h"

#include <algorithm>
#include <gtest/gtest.h>

namespace ksm {
namespace {

GameState GameOfTwentyPlanets() {
    GameState state;
    state.NumPlanets = 20;
    for (std::uint8_t planet = 0; planet < 20; ++planet) {
        state.Player(NeutralOwner).PlanetList[planet] = planet;
    }
    return state;
}

std::vector<int> List(const GameState& state, int owner) {
    const PlanetIndexList& list = state.Player(owner).PlanetList;
    return {list.begin(), std::ranges::find(list, NoPlanet)};
}

TEST(PlanetTransfer, MovesAPlanetBetweenThePackedLists) {
    GameState state = GameOfTwentyPlanets();
    EXPECT_TRUE(TransferPlanet(state, 0, 3));
    EXPECT_TRUE(TransferPlanet(state, 7, 3));
    EXPECT_EQ(state.Planet(7).Owner, 3);
    EXPECT_EQ(List(state, 3), (std::vector{0, 7}));
    EXPECT_EQ(List(state, NeutralOwner).size(), 18U);
    EXPECT_EQ(List(state, NeutralOwner).front(), 1);

    state.View.BoardPlayer = 3;
    EXPECT_TRUE(TransferPlanet(state, 0, NeutralOwner));
    EXPECT_EQ(List(state, 3), std::vector{7});
    EXPECT_EQ(List(state, NeutralOwner).back(), 0) << "appended, not sorted in";
}

TEST(PlanetTransfer, FromAllPlanetsTheFormerPlayerKeepsTheListEntry) {
    GameState state = GameOfTwentyPlanets();
    TransferPlanet(state, 5, 4);
    const std::vector<int> pool = List(state, NeutralOwner);
    EXPECT_TRUE(TransferPlanet(state, 5, 6));
    EXPECT_EQ(state.Planet(5).Owner, 6);
    for (const int owner : {4, 6}) {
        EXPECT_EQ(List(state, owner), std::vector{5}) << owner;
    }
    EXPECT_EQ(List(state, NeutralOwner), pool);
}

TEST(PlanetTransfer, ToItsOwnerOrWithoutAPlanetOrToAFullListChangesNoList) {
    GameState state = GameOfTwentyPlanets();
    TransferPlanet(state, 5, 4);
    const GameState before = state;
    EXPECT_FALSE(TransferPlanet(state, 5, 4));
    EXPECT_FALSE(TransferPlanet(state, 20, 4)) << "a row behind the last planet of a short list";
    EXPECT_EQ(state, before);
    PlanetIndexList& list = state.Player(4).PlanetList;
    list.fill(1);
    const PlanetIndexList full = list;
    EXPECT_TRUE(TransferPlanet(state, 9, 4));
    EXPECT_EQ(state.Planet(9).Owner, 4) << "the planet changes hands all the same";
    EXPECT_EQ(list, full);
}

TEST(PlanetTransfer, SomeDropsAreRefused) {
    GameState state;
    state.View.BoardPlayer = 2;
    for (const auto& [owner, planet, accepted] :
         {std::tuple{3, 7, true}, std::tuple{NeutralOwner, 0, true}, std::tuple{2, 7, false},
          std::tuple{AllPlanets, 7, false}, std::tuple{3, int{NoPlanet}, false}}) {
        EXPECT_EQ(AcceptsDrop(state, owner, planet), accepted) << owner << ", " << planet;
    }
}

} // namespace
} // namespace ksm
