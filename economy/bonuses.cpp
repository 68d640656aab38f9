#include "economy/bonuses.h"

#include <algorithm>

namespace ksm {

int MicroTechBonus(const Game& game, int player, PartnerSet partners) {
    if (!game.Player(player).Micro) {
        return 0;
    }
    const PartnerSet inGame((1U << (game.NumPlayers + 1)) - 1);
    return 3 * static_cast<int>((partners & inGame).count());
}

int TradeBonus(const Game& game, int player, PartnerSet partners) {
    const int most =
        game.Laws.TradeRestrictions ? game.Player(player).Figures.PlanetCount : MaxPlanets;
    int credits = 0;
    for (std::size_t partner = 1; partner <= MaxPlayers; ++partner) {
        if (partners[partner]) {
            credits += std::min(most, game.Players[partner].Figures.PlanetCount);
        }
    }
    return credits;
}

} // namespace ksm
