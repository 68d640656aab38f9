// Why a figure of the player table is what it is.
#pragma once

#include "model/game_state.h"

#include <string>
#include <vector>

namespace ksm {

enum class Figure {
    Resources,
    Influence,
    Planets,
    Credits,
    GreenCost,
    BlueCost,
    RedCost,
    YellowCost
};
inline constexpr int FigureCount = 8;

/// The figure as it was last computed; `player` is 1..10.
int ValueOf(const Game& game, int player, Figure figure);

/// A figure as a sum.
struct Explanation {
    struct Part {
        int Amount = 0;
        std::string Words; ///< UTF-8: "resources", "planets of Bert"
    };

    std::vector<Part> Parts; ///< they add up to the figure as it would be computed now
    std::string Law;         ///< what a law does to the figure as a whole, or empty
};

Explanation Explain(const Game& game, int player, Figure figure);

/// The explanation with a line for each part: "Credits 9 = 6 resources", "+ 3 planets of Bert".
std::string ExplanationText(const Game& game, int player, Figure figure);

/// What the player's space docks bring.
std::string DockText(const Game& game, int player);

/// How a tie decided who has this place 1..10 of the order of play; empty where none did.
std::string RankText(const Game& game, int place);

} // namespace ksm
