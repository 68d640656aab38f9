#include "economy/turn_order.h"

#include "trade/trade_agreements.h"

#include <algorithm>
#include <numeric>

namespace ksm {

namespace {

/// Whether player `one` moves before player `other`.
bool MovesBefore(const Game& game, int one, int other) {
    const PlayerFigures& a = game.Player(one).Figures;
    const PlayerFigures& b = game.Player(other).Figures;
    if (a.Influence != b.Influence) {
        return a.Influence > b.Influence;
    }
    if (a.Resources != b.Resources) {
        return game.Laws.OrlenHouseRules ? a.Resources < b.Resources : a.Resources > b.Resources;
    }
    return one < other;
}

} // namespace

void TurnOrder(Game& game) {
    std::array<int, MaxPlayers> turnOrderSlots{};
    std::iota(turnOrderSlots.begin(), turnOrderSlots.end(), 1);
    std::ranges::sort(turnOrderSlots,
                      [&](int one, int other) { return MovesBefore(game, one, other); });
    auto row = game.TurnOrderRows.begin();
    for (const int player : turnOrderSlots) {
        const PlayerRecord& record = game.Player(player);
        *row++ = {.Player = player,
                  .Name = record.Name,
                  .Resources = record.Figures.Resources,
                  .Influence = record.Figures.Influence,
                  .Italic = record.Race == Race::Dravik && TradePartners(game, player).none()};
    }
}

} // namespace ksm
