// Where the players' labels stand in the trade panel.
#pragma once

#include "model/point.h"

namespace ksm {

/// The top left corner of the player's label in the ring of that many players, 2 to 10.
Point PlaceInRing(int player, int players);

} // namespace ksm
