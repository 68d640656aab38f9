// What happened between two states of a game, in a few words.
#pragma once

#include "model/game_state.h"

#include <string>

namespace ksm {

/// Whether the game changed in anything but prompts, results and what the rules compute.
bool IsChange(const Game& before, const Game& after);

/// Names the one thing that was done: "Pellam Tools, Dora", "Caldry to Emil". Where several were,
/// another game was loaded: "Load Game". UTF-8; for two games between which there is a change.
std::string DescribeChange(const Game& before, const Game& after);

} // namespace ksm
