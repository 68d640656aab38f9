#include "planets/planet_transfer.h"

#include <algorithm>

namespace ksm {

namespace {

void Append(PlanetIndexList& list, std::uint8_t planet) {
    const auto freeSlot = std::ranges::find(list, NoPlanet);
    if (freeSlot != list.end()) {
        *freeSlot = planet;
    }
}

void Remove(PlanetIndexList& list, std::uint8_t planet) {
    const auto slot = std::ranges::find(list, planet);
    if (slot != list.end()) {
        std::move(slot + 1, list.end(), slot);
        list.back() = NoPlanet;
    }
}

} // namespace

bool AcceptsDrop(const GameState& state, int owner, int tag) {
    return owner != state.View.BoardPlayer && owner != AllPlanets && tag != NoPlanet;
}

bool TransferPlanet(GameState& state, int planet, int owner) {
    // A short list leaves rows on the board behind which there is no planet.
    if (planet >= state.Game.NumPlanets || state.Game.Planet(planet).Owner == owner) {
        return false;
    }
    const auto index = static_cast<std::uint8_t>(planet);
    const int source = state.View.BoardPlayer == AllPlanets ? NeutralOwner : state.View.BoardPlayer;
    state.Game.Planet(planet).Owner = static_cast<std::uint8_t>(owner);
    Append(state.Game.Player(owner).PlanetList, index);
    Remove(state.Game.Player(source).PlanetList, index);
    return true;
}

} // namespace ksm
