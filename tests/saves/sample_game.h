// A game in which every input differs from a new game's.
#pragma once

#include "model/game_state.h"

namespace ksm {

GameState SampleGame();

} // namespace ksm
