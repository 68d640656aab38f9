#include "economy/recompute.h"

#include "economy/turn_order.h"
#include "economy/value_update.h"

namespace ksm {

void Recompute(Game& game) {
    UpdateValues(game);
    TurnOrder(game);
}

} // namespace ksm
