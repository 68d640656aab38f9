// The four laws of the "Trade" menu.
#pragma once

#include "model/game_state.h"

namespace ksm {

// The figures have to follow, but for Economic Independence, which changes none.

void ToggleFreeTrade(Game& game);
void ToggleTradeRestrictions(Game& game);
/// Switches the law on, so that the next two clicks choose the pair, or dissolves it.
void ToggleEconomicIndependence(Game& game);
/// Ends every agreement at once.
void StopTrade(Game& game);

} // namespace ksm
