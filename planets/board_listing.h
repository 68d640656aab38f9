// Which planets the board lists.
#pragma once

#include "model/game_state.h"

namespace ksm {

/// For each row the table slot of its planet, or `NoPlanet` for an empty row.
using BoardRows = std::array<std::uint8_t, BoardRowCount>;

/// How far the board can scroll in its present view: everything beyond the first page. An owner's
/// planets are counted as of the last UpdateValues.
int BoardMaximum(const GameState& state);

/// The rows of the present view from the present position.
BoardRows ListBoard(const GameState& state);

/// Turns the board to owner 0..10 or to all planets. The position stays, as far as the list
/// reaches; no owner is marked by a drag any longer.
void ListOwner(GameState& state, int owner);

/// The game became another one while the board showed something of it: what it shows then is what
/// it showed, as far as that is there, without the marks of a drag.
void RelistBoard(GameState& state);

} // namespace ksm
