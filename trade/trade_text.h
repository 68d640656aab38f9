// What can be said of a player's trade.
#pragma once

#include "model/game_state.h"

#include <string>

namespace ksm {

/// With whom the player 1..10 trades, and which laws bind, a line each. UTF-8.
std::string TradeText(const Game& game, int player);

} // namespace ksm
