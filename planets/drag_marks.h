// The red marks that a drag leaves on the board.
#pragma once

#include "model/game_state.h"

namespace ksm {

/// Marks the owner label 0..10 and the row that is dragged over it; another owner loses its mark.
/// The listed owner and "All planets" are never marked, and nothing happens over them.
void MarkDragOver(GameState& state, int owner, int row);

/// A drop on the owner was accepted: takes the marks off all rows and off this owner.
void UnmarkAfterDrop(GameState& state, int owner);

/// The drag was cancelled: takes all marks away.
void UnmarkAll(GameState& state);

} // namespace ksm
