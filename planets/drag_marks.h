// The red marks that a drag leaves on the board.
#pragma once

#include "model/game_state.h"

namespace ksm {

/// Marks the owner label 0..10 and the row that is dragged over it; another owner loses its mark.
/// The listed owner and "All planets" are never marked, and nothing happens over them.
inline void MarkDragOver(GameView& view, int owner, int row) {
    if (owner != view.BoardPlayer && owner != AllPlanets) {
        view.MarkedOwner = owner;
        view.MarkedRows.set(static_cast<std::size_t>(row));
    }
}

/// A drop on the owner was accepted: takes the marks off all rows and off this owner.
inline void UnmarkAfterDrop(GameView& view, int owner) {
    view.MarkedRows.reset();
    if (view.MarkedOwner == owner) {
        view.MarkedOwner = NoOwner;
    }
}

/// The drag was cancelled: takes all marks away.
inline void UnmarkAll(GameView& view) {
    view.MarkedRows.reset();
    view.MarkedOwner = NoOwner;
}

} // namespace ksm
