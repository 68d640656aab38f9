// What the members of a game cannot be together.
#pragma once

#include "model/game_state.h"

#include <string>

namespace ksm {

/// What play never leads to, though each member is one that is allowed: the first such thing, as a
/// sentence that begins with the member; empty where there is none. The figures must be computed.
std::string FindContradiction(const GameState& state);

} // namespace ksm
