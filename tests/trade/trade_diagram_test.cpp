#include "model/player_labels.h"
#include "trade/trade_diagram.h"

#include <gtest/gtest.h>

namespace ksm {
namespace {

TEST(TradeDiagram, DrawsAgreementsRowByRowAndTheForbiddenPairOnTop) {
    Game game;                    // of six
    game.Player(8).TradeRing = 9; // hidden, and left where it was
    SetColours(game, 3, {.Back = colour::Pink, .Text = colour::Black});
    game.Cell(3, 2) = game.Cell(1, 8) = Agreement;
    game.IndepFirst = 2;
    RedrawTradeDiagram(game);
    const Strokes agreements{{{28, 97}, {108, 165}, colour::Orange, 3},
                             {{156, 29}, {76, 29}, colour::Pink, 3}};
    EXPECT_EQ(game.TradeStrokes, agreements) << "half a pair is not marked";

    game.IndepSecond = 6;
    RedrawTradeDiagram(game);
    Strokes all = agreements;
    all.push_back({{76, 29}, {76, 165}, colour::Red, 6});
    all.push_back({{76, 29}, {76, 165}, colour::White, 2});
    SetColours(game, 3, {.Back = colour::Navy, .Text = colour::White});
    DrawTradeLine(game, 3, 4);
    all.push_back({{156, 29}, {204, 97}, colour::Navy, 3});
    EXPECT_EQ(game.TradeStrokes, all) << "what was drawn keeps its colours";
}

} // namespace
} // namespace ksm
