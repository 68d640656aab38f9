#include "planets/board_listing.h"

#include <algorithm>
#include <numeric>

namespace ksm {

int BoardMaximum(const GameState& state) {
    const int owner = state.View.BoardPlayer;
    const int planets =
        owner == AllPlanets ? state.Game.NumPlanets : state.Game.Player(owner).Figures.PlanetCount;
    return std::max(planets - BoardRowCount, 0);
}

BoardRows ListBoard(const GameState& state) {
    BoardRows rows;
    if (state.View.BoardPlayer == AllPlanets) {
        std::iota(rows.begin(), rows.end(), static_cast<std::uint8_t>(state.View.BoardPosition));
        return rows;
    }
    rows.fill(NoPlanet);
    int seen = 0;
    auto row = rows.begin();
    for (int planet = 0; planet < state.Game.NumPlanets && row != rows.end(); ++planet) {
        if (state.Game.Planet(planet).Owner == state.View.BoardPlayer &&
            ++seen > state.View.BoardPosition) {
            *row++ = static_cast<std::uint8_t>(planet);
        }
    }
    return rows;
}

void ListOwner(GameState& state, int owner) {
    state.View.BoardPlayer = owner;
    state.View.BoardPosition = std::min(state.View.BoardPosition, BoardMaximum(state));
    state.View.MarkedOwner = NoOwner;
}

void RelistBoard(GameState& state) {
    state.View.MarkedRows.reset();
    const int owner = state.View.BoardPlayer;
    const bool isThere =
        state.Game.Started() && (owner == AllPlanets || owner <= state.Game.NumPlayers);
    if (!state.Game.Started()) {
        state.View.BoardPosition = 0;
    }
    ListOwner(state, isThere ? owner : AllPlanets);
}

} // namespace ksm
