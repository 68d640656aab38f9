// What a figure is made of is told in evenings/, too, but for what is rare.

#include "economy/explanation.h"
#include "economy/value_update.h"
#include "planets/planet_list_file.h"
#include "planets/planet_text.h"

#include <gtest/gtest.h>

namespace ksm {
namespace {

TEST(Explanation, SaysThatADiscountIsLimitedToTheBaseCost) {
    Game game;
    SetPlanets(game, *ReadPlanetList("Ith,40,2,b\rVeran,1,0,b"));
    game.Planet(0).Owner = game.Planet(1).Owner = 4;
    game.Player(4).PellamTools = true;
    game.Player(4).Race = Race::Orrun;
    game.BlueModifier = 14;
    UpdateValues(game);
    EXPECT_EQ(ExplanationText(game, 4, Figure::BlueCost),
              "Blue cost -1 = 30 base cost of Orrun\n- 40 Ith\n- 1 Veran\n"
              "- 2 Pellam Tools (2 planets)\n+ 13 (the discount is limited to the base cost)\n"
              "- 1 Tech Modifiers");
    EXPECT_EQ(PlanetFiguresText(game, 1), "1 resource, 0 influence\nmakes blue technology cheaper "
                                          "by its resources and one more (Pellam Tools)");
}

TEST(Explanation, NamesTwelvePlanetsAtMost) {
    Game game;
    SetPlanets(game, PlanetList(13, {"Far", 2, 1}));
    for (int planet = 0; planet < 13; ++planet) {
        game.Planet(planet).Owner = 1;
    }
    UpdateValues(game);
    EXPECT_EQ(ExplanationText(game, 1, Figure::Influence), "Influence 13 = 13 from planets");
    EXPECT_EQ(ExplanationText(game, 1, Figure::Planets),
              "Planets 13 = 13 planets (a click on the owner lists them)");
}

} // namespace
} // namespace ksm
