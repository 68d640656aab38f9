#include "planets/drag_marks.h"

namespace ksm {

void MarkDragOver(GameState& state, int owner, int row) {
    if (owner == state.View.BoardPlayer || owner == AllPlanets) {
        return;
    }
    state.View.MarkedOwner = owner;
    state.View.MarkedRows.set(static_cast<std::size_t>(row));
}

void UnmarkAfterDrop(GameState& state, int owner) {
    state.View.MarkedRows.reset();
    if (state.View.MarkedOwner == owner) {
        state.View.MarkedOwner = NoOwner;
    }
}

void UnmarkAll(GameState& state) {
    state.View.MarkedRows.reset();
    state.View.MarkedOwner = NoOwner;
}

} // namespace ksm
