#include "planets/board_listing.h"

#include <algorithm>

namespace ksm {

int BoardMaximum(const GameState& state) {
    const int planets = state.BoardPlayer == AllPlanets
                            ? state.NumPlanets
                            : state.Player(state.BoardPlayer).PlanetCount;
    return std::max(planets - BoardRowCount, 0);
}

void ListBoard(const GameState& state, BoardRows& rows) {
    if (state.BoardPlayer == AllPlanets) {
        for (std::size_t row = 0; row < rows.size(); ++row) {
            rows[row] =
                static_cast<std::uint8_t>(row + static_cast<std::size_t>(state.BoardPosition));
        }
        return;
    }
    int seen = 0;
    auto row = rows.begin();
    for (int planet = 0; planet < state.NumPlanets && row != rows.end(); ++planet) {
        if (state.Planet(planet).Owner == state.BoardPlayer && ++seen > state.BoardPosition) {
            *row++ = static_cast<std::uint8_t>(planet);
        }
    }
}

} // namespace ksm
