// What happened between two states of a game, in a few words.
#pragma once

#include "model/game_state.h"

#include <string>

namespace ksm {

/// Whether the game changed in anything but prompts, results and what the rules compute.
bool IsChange(const Game& before, const Game& after);

/// Says what differs: "Pellam Tools, Dora", "Caldry to Emil and 2 more". UTF-8; for two games
/// between which there is a change.
std::string DescribeChange(const Game& before, const Game& after);

} // namespace ksm
