#include "trade/trade_text.h"

#include "model/player_labels.h"
#include "trade/trade_agreements.h"

namespace ksm {

namespace {

std::string PartnersText(const Game& game, int player) {
    const PartnerSet partners = TradePartners(game, player);
    std::string names;
    for (int partner = 1; partner <= MaxPlayers; ++partner) {
        if (partners[static_cast<std::size_t>(partner)]) {
            names += (names.empty() ? "" : ", ") + SpokenName(game, partner);
        }
    }
    return SpokenName(game, player) +
           (names.empty() ? " has no Trade Agreement" : " trades with " + names);
}

/// The other one of the pair under Economic Independence, 0 = none.
int ForbiddenPartner(const Game& game, int player) {
    const bool isPair = game.IndepFirst != game.IndepSecond;
    if (isPair && player == game.IndepFirst) {
        return game.IndepSecond;
    }
    return isPair && player == game.IndepSecond ? game.IndepFirst : 0;
}

} // namespace

std::string TradeText(const Game& game, int player) {
    std::string text = PartnersText(game, player);
    if (game.Laws.FreeTrade) {
        text += "\nFree Trade: five credits for each partner";
    }
    if (game.Laws.TradeRestrictions) {
        text += "\nTrade Restrictions: an agreement brings the smaller planet count of the two";
    }
    if (const int other = ForbiddenPartner(game, player)) {
        text += "\nEconomic Independance: no trade with " + SpokenName(game, other);
    }
    return text;
}

} // namespace ksm
