// A planet changes hands.
#pragma once

#include "model/game_state.h"

namespace ksm {

/// Whether a planet with this tag may be dropped on the owner's label: never on the listed owner,
/// on "All planets", or from an empty row.
bool AcceptsDrop(const GameState& state, int owner, int tag);

/// Gives the planet to `owner` (0..10): sets its owner, appends it to the new owner's list and
/// takes it from the list of the owner on the board (the pool's in the "All planets" view). A full
/// list stays as it is. Returns whether anything changed; not when the owner has the planet
/// already.
bool TransferPlanet(GameState& state, int planet, int owner);

} // namespace ksm
