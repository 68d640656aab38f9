// The game that the measurements are made on.
#pragma once

#include "model/game_state.h"

namespace ksm {

/// A game in which everything adds to the figures: each player owns a fair share of the planets,
/// all technologies and ten space docks, trades with every other one, and is Orrun or Altheran in
/// turn; all laws are in force.
Game FullGame(int players, int planets);

} // namespace ksm
