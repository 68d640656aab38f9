// The four laws of the "Trade" menu.
#pragma once

#include "trade/trade_agreements.h"

namespace ksm {

TradeOutcome TFree_Click(GameState& state);
TradeOutcome TRestr_Click(GameState& state);
/// Switches Economic Independence on, so that the next two clicks choose the pair, or dissolves it.
TradeOutcome Tres_Click(GameState& state);
/// Cancels every agreement at once.
TradeOutcome TStop_Click(GameState& state);

} // namespace ksm
