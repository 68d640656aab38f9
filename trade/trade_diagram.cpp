#include "trade/trade_diagram.h"

#include "trade/ring.h"

namespace ksm {

namespace {

constexpr int AgreementWidth = 3;
constexpr int MarkerWidth = 6;
constexpr int MarkerCoreWidth = 2;

// Where the player's lines end, below the label. A hidden label keeps its last place.
Point AnchorOf(const Game& game, int player) {
    const Point corner = PlaceInRing(player, game.Player(player).TradeRing);
    return {corner.X + 15, corner.Y + 8};
}

void DrawIndependenceLine(Game& game) {
    const Point from = AnchorOf(game, game.IndepFirst);
    const Point to = AnchorOf(game, game.IndepSecond);
    game.TradeStrokes.push_back({from, to, colour::Red, MarkerWidth});
    game.TradeStrokes.push_back({from, to, colour::White, MarkerCoreWidth});
}

} // namespace

void DrawTradeLine(Game& game, int from, int to) {
    game.TradeStrokes.push_back({AnchorOf(game, from), AnchorOf(game, to),
                                 game.Player(from).TradeColours.Back, AgreementWidth});
}

void RedrawTradeDiagram(Game& game) {
    game.TradeStrokes.clear();
    for (int from = 1; from <= MaxPlayers; ++from) {
        for (int to = 1; to <= MaxPlayers; ++to) {
            if (game.Cell(from, to) != NoAgreement) {
                DrawTradeLine(game, from, to);
            }
        }
    }
    // Between the two picks of the pair there is no second label to draw to, and when the law is
    // dissolved between them there is no first one.
    if (game.IndepFirst != 0 && game.IndepSecond != 0) {
        DrawIndependenceLine(game);
    }
}

} // namespace ksm
