#include "trade/trade_diagram.h"

namespace ksm {

namespace {

constexpr Colour Red{255, 0, 0};
constexpr int AgreementWidth = 3;
constexpr int MarkerWidth = 6;
constexpr int MarkerCoreWidth = 2;

} // namespace

void TradeDiagram::DrawTradeLine(const GameState& state, const TradeAnchors& anchors, int from,
                                 int to) {
    strokes.push_back(
        {anchors[from], anchors[to], state.Controls[from].TradeColours.Back, AgreementWidth});
}

void TradeDiagram::DrawIndependenceLine(const GameState& state, const TradeAnchors& anchors) {
    const Point from = anchors[state.IndepFirst];
    const Point to = anchors[state.IndepSecond];
    strokes.push_back({from, to, Red, MarkerWidth});
    strokes.push_back({from, to, White, MarkerCoreWidth});
}

void TradeDiagram::RedrawTradeDiagram(const GameState& state, const TradeAnchors& anchors) {
    strokes.clear();
    for (int from = 1; from <= MaxPlayers; ++from) {
        for (int to = 1; to <= MaxPlayers; ++to) {
            if (state.Cell(from, to) != NoAgreement) {
                DrawTradeLine(state, anchors, from, to);
            }
        }
    }
    // Between the two picks of the pair there is no second label to draw to, and when the law is
    // dissolved between them there is no first one.
    if (state.IndepFirst != 0 && state.IndepSecond != 0) {
        DrawIndependenceLine(state, anchors);
    }
}

} // namespace ksm
