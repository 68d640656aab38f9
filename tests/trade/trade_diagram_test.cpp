#include "model/player_labels.h"
#include "trade/ring.h"
#include "trade/trade_diagram.h"

#include <gtest/gtest.h>

namespace ksm {
namespace {

TEST(PlaceInRing, GoesRoundClockwise) {
    const std::tuple<int, int, Point> rows[]{
        {1, 2, {45, 89}},  {2, 2, {165, 89}},  {2, 3, {165, 133}}, {4, 4, {29, 141}},
        {2, 5, {77, 21}},  {5, 6, {141, 157}}, {4, 7, {189, 53}},  {6, 8, {165, 141}},
        {9, 9, {29, 133}}, {6, 10, {197, 89}}, {10, 10, {29, 133}}};
    for (const auto& [player, players, place] : rows) {
        EXPECT_EQ(PlaceInRing(player, players), place) << player << " of " << players;
    }
}

TEST(TradeDiagram, DrawsAgreementsRowByRowAndTheForbiddenPairOnTop) {
    Game game;                    // of six
    game.Player(8).TradeRing = 9; // hidden, and left where it was
    SetColours(game, 3, {.Back = colour::Pink, .Text = colour::Black});
    game.Cell(3, 2) = game.Cell(1, 8) = game.Cell(2, 10) = game.Cell(10, 8) = Agreement;
    game.IndepFirst = 2;
    RedrawTradeDiagram(game);
    const Strokes agreements{{{28, 97}, {108, 165}, colour::Orange, 3},
                             {{76, 29}, {44, 141}, colour::White, 3},
                             {{156, 29}, {76, 29}, colour::Pink, 3},
                             {{44, 141}, {108, 165}, colour::Red, 3}};
    EXPECT_EQ(game.TradeStrokes, agreements) << "half a pair is not marked";

    game.IndepSecond = 6;
    RedrawTradeDiagram(game);
    Strokes all = agreements;
    all.push_back({{76, 29}, {76, 165}, colour::Red, 6});
    all.push_back({{76, 29}, {76, 165}, colour::White, 2});
    EXPECT_EQ(game.TradeStrokes, all);

    SetColours(game, 3, {.Back = colour::Navy, .Text = colour::White});
    DrawTradeLine(game, 3, 4);
    all.push_back({{156, 29}, {204, 97}, colour::Navy, 3});
    EXPECT_EQ(game.TradeStrokes, all) << "what was drawn keeps its colours";
}

} // namespace
} // namespace ksm
