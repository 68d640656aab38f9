// The four laws of the "Trade" menu.
#pragma once

#include "trade/trade_agreements.h"

namespace ksm {

TradeOutcome TFree_Click(Game& game);
TradeOutcome TRestr_Click(Game& game);
/// Switches Economic Independence on, so that the next two clicks choose the pair, or dissolves it.
TradeOutcome Tres_Click(Game& game);
/// Cancels every agreement at once.
TradeOutcome TStop_Click(Game& game);

} // namespace ksm
