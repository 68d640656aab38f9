#include "trade/trade_agreements.h"

namespace ksm {

bool HaveAgreement(const Game& game, int one, int other) {
    return game.Cell(one, other) != NoAgreement || game.Cell(other, one) != NoAgreement;
}

PartnerSet TradePartners(const Game& game, int player) {
    const auto self = static_cast<std::size_t>(player);
    PartnerSet partners;
    for (std::size_t other = 1; other <= MaxPlayers; ++other) {
        partners[other] =
            (game.TradeAgreements[self][other] | game.TradeAgreements[other][self]) != 0;
    }
    return partners;
}

std::string TradeCountSentence(int agreements) {
    if (agreements == 1) {
        return "There is one Trade Agreement in play.";
    }
    return "There are " + (agreements == 0 ? "no" : std::to_string(agreements)) +
           " Trade Agreements in play.";
}

} // namespace ksm
