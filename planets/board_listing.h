// Which planets the board lists.
#pragma once

#include "model/game_state.h"

namespace ksm {

/// For each row the table slot of its planet, or `NoPlanet` for an empty row.
using BoardRows = std::array<std::uint8_t, BoardRowCount>;

constexpr BoardRows EmptyBoardRows() {
    BoardRows rows{};
    rows.fill(NoPlanet);
    return rows;
}

/// How far the board can scroll in its present view: everything beyond the first page. An owner's
/// planets are counted as of the last UpdateValues.
int BoardMaximum(const GameState& state);

/// Lists the present view from the present position. Rows for which an owner has no more planets
/// stay as they are.
void ListBoard(const GameState& state, BoardRows& rows);

} // namespace ksm
