#include "economy/explanation.h"
#include "economy/game_setup.h"
#include "economy/turn_order.h"
#include "economy/value_update.h"
#include "model/player_labels.h"

#include <functional>
#include <gtest/gtest.h>
#include <numeric>
#include <random>

namespace ksm {
namespace {

/// Dora (4) has Ith and Veran, one of them red, and trades with Emil (5), who has three planets.
Game Evening() {
    Game game;
    const PlanetRecord planets[]{
        {"Ith", 2, 1, Specialty::Red, 4}, {"Veran", 3, 2, {}, 4}, {"Caldry", 1, 0, {}, 5},
        {"Aldis", 0, 0, {}, 5},           {"Morn", 0, 0, {}, 5},  {"Far", 9, 9, {}, 0}};
    for (const PlanetRecord& planet : planets) {
        game.Planet(game.NumPlanets++) = planet;
    }
    SetName(game, 4, "Dora", "Dor");
    SetName(game, 5, "Emil", "Emi");
    game.Cell(5, 4) = Agreement;
    return game;
}

void Own(Game& game, std::initializer_list<bool PlayerRecord::*> technologies) {
    for (const auto technology : technologies) {
        game.Player(4).*technology = true;
    }
}

TEST(Explanation, SaysInTheWordsOfTheRulesWhyAFigureIsWhatItIs) {
    using enum Figure;
    const std::tuple<Figure, std::function<void(Game&)>, const char*> rows[]{
        {Resources, [](Game&) {}, "Resources 5 = 2 Ith\n+ 3 Veran"},
        {Resources, [](Game& game) { Own(game, {&PlayerRecord::PellamTools}); },
         "Resources 7 = 2 Ith\n+ 3 Veran\n+ 2 Pellam Tools (2 planets)"},
        {Resources, [](Game& game) { game.Laws.LabourUnion = true; },
         "Resources 3 = 1 Ith\n+ 2 Veran\nLabour Union: influence and resources change places"},
        {Influence,
         [](Game& game) {
             Own(game, {&PlayerRecord::Enviro});
             game.Player(4).SpaceDocks = 4;
             game.Player(4).Race = Race::Orrun;
         },
         "Influence 8 = 1 Ith\n+ 2 Veran\n+ 4 Enviro Comp. (space docks)\n"
         "+ 1 Orrun (agreements in play)"},
        {Influence, [](Game& game) { game.Player(4).Race = Race::Altheran; },
         "Influence 5 = 1 Ith\n+ 2 Veran\n+ 2 Altheran (planets other than Quessin)"},
        {Planets, [](Game&) {}, "Planets 2 = 1 Ith\n+ 1 Veran"},
        {Credits, [](Game& game) { Own(game, {&PlayerRecord::Micro}); },
         "Credits 11 = 5 resources\n+ 3 planets of Emil\n+ 3 Micro Tech. (1 partner)"},
        {Credits,
         [](Game& game) {
             game.Laws.TradeRestrictions = game.Laws.FreeTrade = true;
             game.Cell(1, 4) = Agreement;
         },
         "Credits 17 = 5 resources\n"
         "+ 0 planets of Player 1 (Trade Restrictions: 0, the smaller of 2 and 0)\n"
         "+ 2 planets of Emil (Trade Restrictions: 2, the smaller of 2 and 3)\n"
         "+ 10 Free Trade (2 partners)"},
        {RedCost,
         [](Game& game) {
             ChooseRace(game, 4, Race::IthVeran);
             game.RedModifier = 18;
         },
         "Red cost 41 = 40 base cost of Ith-Veran\n- 2 Ith\n+ 3 Tech Modifiers"},
        {RedCost,
         [](Game& game) {
             game.Planet(0).Resources = 40;
             Own(game, {&PlayerRecord::PellamTools});
         },
         "Red cost 0 = 30 base cost of everybody\n- 40 Ith\n- 1 Pellam Tools (1 planet)\n"
         "+ 11 the discount is cut at the base cost"},
        {YellowCost, [](Game& game) { game.YellowModifier = 0; },
         "Yellow cost 15 = 30 base cost of everybody\n- 15 Tech Modifiers"},
    };
    for (const auto& [figure, prepare, text] : rows) {
        Game game = Evening();
        prepare(game);
        UpdateValues(game);
        EXPECT_EQ(ExplanationText(game, 4, figure), text);
    }
    EXPECT_EQ(ExplanationText(Game(), 4, Resources), "Resources 0");
}

TEST(Explanation, ManyPlanetsAreOneLine) {
    Game game;
    game.NumPlanets = 20;
    for (PlanetRecord& planet : game.LoadedPlanets()) {
        planet.Owner = 4;
        planet.Resources = 2;
    }
    UpdateValues(game);
    EXPECT_EQ(ExplanationText(game, 4, Figure::Resources), "Resources 40 = 40 of 20 planets");
}

/// A game in which everything that adds to a figure is there or not by chance.
Game RandomGame(std::mt19937& random) {
    const auto pick = [&](int least, int most) {
        return std::uniform_int_distribution(least, most)(random);
    };
    Game game;
    game.NumPlayers = pick(MinPlayers, MaxPlayers);
    game.NumPlanets = pick(1, 40);
    for (PlanetRecord& planet : game.LoadedPlanets()) {
        planet = {pick(0, 9) == 0 ? "Quessin" : "P", static_cast<std::uint8_t>(pick(0, 9)),
                  static_cast<std::uint8_t>(pick(0, 9)), static_cast<Specialty>(pick(0, 3)),
                  static_cast<std::uint8_t>(pick(0, MaxPlayers))};
    }
    for (int player = 1; player <= MaxPlayers; ++player) {
        PlayerRecord& record = game.Player(player);
        record.Race = static_cast<Race>(pick(0, RaceCount));
        TakeCostsOfRace(record);
        record.SpaceDocks = pick(0, MaxSpaceDocks);
        record.Enviro = pick(0, 1) == 1;
        record.PellamTools = pick(0, 1) == 1;
        record.Micro = pick(0, 1) == 1;
        for (int partner = 1; partner < player; ++partner) {
            game.Cell(player, partner) = pick(0, 3) == 0 ? Agreement : NoAgreement;
        }
    }
    game.Laws = {.LabourUnion = pick(0, 1) == 1,
                 .FreeTrade = pick(0, 1) == 1,
                 .TradeRestrictions = pick(0, 1) == 1};
    for (std::int16_t Game::*modifier :
         {&Game::GreenModifier, &Game::BlueModifier, &Game::RedModifier, &Game::YellowModifier}) {
        game.*modifier = static_cast<std::int16_t>(pick(0, MaxModifier));
    }
    return game;
}

TEST(Explanation, ThePartsAddUpToTheFigureInTenThousandRandomGames) {
    std::mt19937 random(10);
    for (int number = 0; number < 10'000; ++number) {
        Game game = RandomGame(random);
        UpdateValues(game);
        // What was computed for another number of players is explained as well.
        game.NumPlayers = number % 10 == 0 ? MinPlayers : game.NumPlayers;
        for (int player = 1; player <= MaxPlayers; ++player) {
            for (int index = 0; index < FigureCount; ++index) {
                const auto figure = static_cast<Figure>(index);
                const auto parts = Explain(game, player, figure).Parts;
                const int sum =
                    std::accumulate(parts.begin(), parts.end(), 0, [](int total, const auto& part) {
                        return total + part.Amount;
                    });
                ASSERT_EQ(sum, ValueOf(game, player, figure)) << number << ", " << player;
                const bool other = !parts.empty() && parts.back().Words.starts_with("for the");
                ASSERT_TRUE(!other || number % 10 == 0) << "every part is found";
            }
        }
    }
}

TEST(Explanation, DocksAndRanks) {
    Game game = Evening();
    EXPECT_EQ(DockText(game, 4), "Space Docks 1: they bring influence with Enviro Comp.");
    Own(game, {&PlayerRecord::Enviro});
    EXPECT_EQ(DockText(game, 4), "Space Docks 1: 1 influence by Enviro Comp.");
    for (const auto& [player, influence, resources] :
         {std::tuple{4, 9, 5}, std::tuple{5, 9, 2}, std::tuple{6, 9, 2}, std::tuple{1, 7, 0}}) {
        game.Player(player).Influence = influence;
        game.Player(player).Resources = resources;
    }
    TurnOrder(game);
    EXPECT_EQ(RankText(game, 1), "before Emil: equal influence, more resources");
    EXPECT_EQ(RankText(game, 2), "after Dora: equal influence, fewer resources\n"
                                 "before Player 6: equal influence and resources, "
                                 "lower player number");
    EXPECT_EQ(RankText(game, 4), "");
    EXPECT_EQ(RankText(game, 6),
              "after Player 2: equal influence and resources, higher player number")
        << "nobody beyond the game is compared";
    game.Laws.OrlenHouseRules = true;
    TurnOrder(game);
    EXPECT_EQ(RankText(game, 3), "after Player 6: equal influence, more resources "
                                 "(Orlen house rules)");
}

} // namespace
} // namespace ksm
