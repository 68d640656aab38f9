// What follows from a change of an input.
#pragma once

#include "economy/turn_order.h"
#include "economy/value_update.h"

namespace ksm {

/// Recomputes every derived figure, then ranks the players by them.
inline void Recompute(Game& game) {
    UpdateValues(game);
    TurnOrder(game);
}

} // namespace ksm
