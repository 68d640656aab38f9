#include "economy/game_setup.h"

#include <gtest/gtest.h>

namespace ksm {
namespace {

GameState GameWithPlanets(std::initializer_list<const char*> names) {
    GameState state;
    for (const char* name : names) {
        state.Planet(state.NumPlanets++).Name = name;
    }
    return state;
}

std::vector<std::string> PlanetsOf(const GameState& state, int player) {
    std::vector<std::string> names;
    for (int planet = 0; planet < state.NumPlanets; ++planet) {
        if (state.Planet(planet).Owner == player) {
            names.push_back(state.Planet(planet).Name);
        }
    }
    return names;
}

using Names = std::vector<std::string>;

TEST(Races, EachGivesItsCostsEnviroCompAndHomePlanets) {
    const std::tuple<Race, int, int, bool, Names> rows[]{
        {Race::Altheran, 30, 30, true, {"Quessin"}},
        {Race::Quorvi, 30, 30, true, {"Belthune", "Miradel", "Ostrane"}},
        {Race::IthVeran, 40, 20, true, {"Ith", "Veran"}},
        {Race::Dravik, 30, 30, false, {"Ossa Prime", "Calix Terra"}},
        {Race::Khorrum, 30, 30, false, {"Sennavor", "Gor'Tash"}},
        {Race::Orrun, 30, 30, false, {"Pellis Tau", "Pellis Ren"}}};
    for (const auto& [race, red, others, enviro, homes] : rows) {
        SCOPED_TRACE(TraitsOf(race).Caption);
        GameState state = GameWithPlanets({"Quessin", "Belthune", "Miradel", "Ostrane", "Ith",
                                           "Veran", "Ossa Prime", "Calix Terra", "Sennavor",
                                           "Gor'Tash", "Pellis Tau", "Pellis Ren", "Ith ", "ith"});
        // What an earlier choice left behind must not stay.
        ChooseRace(state, 2, race == Race::IthVeran ? Race::Quorvi : Race::IthVeran);
        ChooseRace(state, 2, race);
        const PlayerRecord& player = state.Player(2);
        EXPECT_EQ(player.RedCost, red);
        EXPECT_EQ(player.BlueCost, others);
        EXPECT_EQ(player.YellowCost, others);
        EXPECT_EQ(player.GreenCost, others);
        EXPECT_EQ(state.Player(2).Enviro, enviro);
        EXPECT_EQ(state.Player(2).MicroEnabled, enviro);
        EXPECT_EQ(PlanetsOf(state, 2), homes);
    }
}

TEST(Races, AChoiceReleasesEveryPlanetAndTakesTheHomesFromWhoeverHasThem) {
    GameState state = GameWithPlanets({"Ith", "Veran", "Veran", "Far", "Quessin"});
    ChooseRace(state, 1, Race::IthVeran);
    ChooseRace(state, 2, Race::IthVeran);
    EXPECT_EQ(PlanetsOf(state, 2), (Names{"Ith", "Veran", "Veran"})) << "a name on the list twice";
    EXPECT_EQ(state.Player(1).Race, Race::IthVeran);
    EXPECT_EQ(state.Player(1).RedCost, 40);
    state.Planet(0).Owner = 4;
    state.Planet(3).Owner = 2;
    ChooseRace(state, 2, Race::IthVeran);
    EXPECT_EQ(PlanetsOf(state, 2), (Names{"Ith", "Veran", "Veran"})) << "the same race again";
}

TEST(Races, ATickedTechnologyOutlivesTheRaceThatAllowedIt) {
    GameState state = GameWithPlanets({"Quessin"});
    ChooseRace(state, 1, Race::Altheran);
    state.Player(1).Micro = true;
    ChooseRace(state, 1, Race::Khorrum);
    EXPECT_FALSE(state.Player(1).Enviro);
    EXPECT_FALSE(state.Player(1).PellamToolsEnabled);
    EXPECT_TRUE(state.Player(1).Micro && state.Player(1).MicroEnabled);
}

} // namespace
} // namespace ksm
