// The lines between the players' trade labels.
#pragma once

#include "model/colour.h"
#include "model/game_state.h"

#include <array>
#include <span>
#include <vector>

namespace ksm {

/// A place in the trade panel, in pixels.
struct Point {
    int X = 0;
    int Y = 0;

    bool operator==(const Point&) const = default;
};

struct Stroke {
    Point From;
    Point To;
    ksm::Colour Colour;
    int Width = 0; ///< pixels

    bool operator==(const Stroke&) const = default;
};

/// Where each player's lines end. A hidden label keeps its last place.
using TradeAnchors = PerPlayer<Point>;

/// Keeps what was drawn until it is cleared: a line does not follow a later change of colours or of
/// the labels' places.
class TradeDiagram {
public:
    /// Adds the line of an agreement that player `from` made, in that player's colour.
    void DrawTradeLine(const GameState& state, const TradeAnchors& anchors, int from, int to);

    /// Clears the diagram, then draws the agreements row by row and the independence pair on top.
    void RedrawTradeDiagram(const GameState& state, const TradeAnchors& anchors);

    /// In the order of drawing.
    std::span<const Stroke> Strokes() const { return strokes; }

private:
    void DrawIndependenceLine(const GameState& state, const TradeAnchors& anchors);

    std::vector<Stroke> strokes;
};

} // namespace ksm
