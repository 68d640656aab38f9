#include "economy/turn_order.h"

#include "trade/trade_agreements.h"

#include <algorithm>

namespace ksm {

std::array<TurnOrderRow, MaxPlayers> TurnOrder(const GameState& state) {
    std::array<TurnOrderRow, MaxPlayers> rows;
    for (int player = 1; player <= MaxPlayers; ++player) {
        const bool dravik = state.Controls[player].Race == Race::Dravik;
        rows[static_cast<std::size_t>(player - 1)] = {
            player, dravik && TradePartners(state, player).none()};
    }
    const bool houseRules = state.Laws.OrlenHouseRules;
    std::ranges::sort(rows, [&](const TurnOrderRow& one, const TurnOrderRow& other) {
        const PlayerRecord& a = state.Player(one.Player);
        const PlayerRecord& b = state.Player(other.Player);
        if (a.Influence != b.Influence) {
            return a.Influence > b.Influence;
        }
        if (a.Resources != b.Resources) {
            return houseRules ? a.Resources < b.Resources : a.Resources > b.Resources;
        }
        return one.Player < other.Player;
    });
    return rows;
}

} // namespace ksm
