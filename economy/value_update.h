// The recomputation of every derived figure.
#pragma once

#include "model/game_state.h"

namespace ksm {

/// Clears every derived figure of slots 0..10 and the count of agreements, and recomputes them from
/// the inputs. Calling it twice changes nothing; slots 11 and 12 are never touched.
void UpdateValues(Game& game);

} // namespace ksm
