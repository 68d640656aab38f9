#include "economy/bonuses.h"

#include <algorithm>

namespace ksm {

int MicroTechBonus(const GameState& state, int player, PartnerSet partners) {
    if (!state.Controls[player].Micro) {
        return 0;
    }
    const PartnerSet inGame((1U << (state.NumPlayers + 1)) - 1);
    return 3 * static_cast<int>((partners & inGame).count());
}

int CountAltheranHomes(const GameState& state, int player) {
    const auto loaded = state.Planets.begin() + state.NumPlanets;
    return static_cast<int>(
        std::count_if(state.Planets.begin(), loaded, [player](const PlanetRecord& planet) {
            return planet.Owner == player && IsAltheranHome(planet);
        }));
}

int TradeBonus(const GameState& state, int player, PartnerSet partners) {
    const int most = state.Laws.TradeRestrictions ? state.Player(player).PlanetCount : MaxPlanets;
    int credits = 0;
    for (std::size_t partner = 1; partner <= MaxPlayers; ++partner) {
        if (partners[partner]) {
            credits += std::min(most, state.Players[partner].PlanetCount);
        }
    }
    return credits;
}

} // namespace ksm
