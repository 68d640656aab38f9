#include "economy/game_setup.h"
#include "planets/planet_list_file.h"

#include <gtest/gtest.h>

namespace ksm {
namespace {

Game GameWithPlanets(const char* names) {
    Game game;
    SetPlanets(game, *ReadPlanetList(names));
    return game;
}

std::string PlanetsOf(const Game& game, int player) {
    std::string names;
    for (const PlanetRecord& planet : game.LoadedPlanets()) {
        names += planet.Owner == player ? planet.Name + '|' : "";
    }
    return names;
}

TEST(Races, EachGivesItsCostsEnviroCompAndHomePlanets) {
    const std::tuple<Race, int, int, bool, std::string> rows[]{
        {Race::Altheran, 30, 30, true, "Quessin|"},
        {Race::Quorvi, 30, 30, true, "Belthune|Miradel|Ostrane|"},
        {Race::IthVeran, 40, 20, true, "Ith|Veran|"},
        {Race::Dravik, 30, 30, false, "Ossa Prime|Calix Terra|"},
        {Race::Khorrum, 30, 30, false, "Sennavor|Gor'Tash|"},
        {Race::Orrun, 30, 30, false, "Pellis Tau|Pellis Ren|"}};
    Game game =
        GameWithPlanets("Quessin\rBelthune\rMiradel\rOstrane\rIth\rVeran\rOssa Prime\r"
                        "Calix Terra\rSennavor\rGor'Tash\rPellis Tau\rPellis Ren\rIth \rith");
    for (const auto& [race, red, others, enviro, homes] : rows) {
        ChooseRace(game, 10, race);
        const PlayerRecord& player = game.Player(10);
        EXPECT_EQ(std::tuple(player.RedCost, player.BlueCost, player.YellowCost, player.GreenCost),
                  std::tuple(red, others, others, others));
        EXPECT_EQ(std::tuple(player.Enviro, player.MicroEnabled), std::tuple(enviro, enviro));
        EXPECT_EQ(PlanetsOf(game, 10), homes);
    }
}

TEST(Races, AChoiceTakesTheHomesFromWhoeverHasThem) {
    Game game = GameWithPlanets("Ith\rVeran\rVeran\rFar");
    ChooseRace(game, 1, Race::IthVeran);
    ChooseRace(game, 2, Race::IthVeran);
    EXPECT_EQ(PlanetsOf(game, 2), "Ith|Veran|Veran|") << "a name on the list twice";
    EXPECT_EQ(game.Player(1).RedCost, 40) << "whose planets are taken keeps the race";
}

} // namespace
} // namespace ksm
