#include "economy/value_update.h"

#include "economy/bonuses.h"

#include <algorithm>
#include <array>
#include <numeric>
#include <span>
#include <utility>

namespace ksm {

namespace {

/// What the planets of one owner add up to, by specialty.
struct Holding {
    std::array<int, SpecialtyCount> Planets{};
    std::array<int, SpecialtyCount> Resources{};
    int Influence = 0;
    int AltheranHomes = 0;
};

using Holdings = std::array<Holding, OwnerSlots>;

int CountAgreements(const TradeTable& table) {
    int agreements = 0;
    for (const auto& row : table) {
        for (const std::int16_t cell : row) {
            agreements += cell != NoAgreement ? 1 : 0;
        }
    }
    return agreements;
}

Holdings AddUpPlanets(const GameState& state) {
    Holdings holdings;
    const std::span loaded(state.Planets.data(), static_cast<std::size_t>(state.NumPlanets));
    for (const PlanetRecord& planet : loaded) {
        const auto specialty = static_cast<std::size_t>(planet.Specialty);
        Holding& holding = holdings[planet.Owner];
        holding.Planets[specialty] += 1;
        holding.Resources[specialty] += planet.Resources;
        holding.Influence += planet.Influence;
        if (IsAltheranHome(planet)) {
            holding.AltheranHomes += 1;
        }
    }
    return holdings;
}

void TakeHolding(PlayerRecord& player, const Holding& holding, int pellamTools) {
    const auto resources = [&](Specialty specialty) {
        const auto place = static_cast<std::size_t>(specialty);
        return holding.Resources[place] + pellamTools * holding.Planets[place];
    };
    player.PlanetCount = std::reduce(holding.Planets.begin(), holding.Planets.end());
    player.Influence = player.PlanetInfluence = holding.Influence;
    player.RedDiscount = resources(Specialty::Red);
    player.BlueDiscount = resources(Specialty::Blue);
    player.GreenDiscount = resources(Specialty::Green);
    player.Resources = player.PlanetResources = resources(Specialty::None) + player.RedDiscount +
                                                player.BlueDiscount + player.GreenDiscount;
}

void ComputeCosts(const GameState& state, PlayerRecord& player) {
    player.RedDiscount = std::min<int>(player.RedDiscount, player.RedCost);
    player.BlueDiscount = std::min<int>(player.BlueDiscount, player.BlueCost);
    player.GreenDiscount = std::min<int>(player.GreenDiscount, player.GreenCost);
    player.RedTech = player.RedCost - player.RedDiscount + state.RedModifier - NeutralModifier;
    player.BlueTech = player.BlueCost - player.BlueDiscount + state.BlueModifier - NeutralModifier;
    player.GreenTech =
        player.GreenCost - player.GreenDiscount + state.GreenModifier - NeutralModifier;
    player.YellowTech = player.YellowCost + state.YellowModifier - NeutralModifier;
}

void ComputePlayer(GameState& state, int number, int altheranHomes) {
    PlayerRecord& player = state.Player(number);
    player.Influence += EnviroCompBonus(state, number) + OrrunBonus(state, number) +
                        AltheranBonus(state, number, altheranHomes);
    if (state.Laws.LabourUnion) {
        std::swap(player.Resources, player.Influence);
        player.PlanetResources = player.Resources;
    }
    const PartnerSet partners = TradePartners(state, number);
    player.Credits = player.PlanetResources + TradeBonus(state, number, partners) +
                     FreeTradeBonus(state, partners) + MicroTechBonus(state, number, partners);
    ComputeCosts(state, player);
}

} // namespace

void UpdateValues(GameState& state) {
    state.TradeCount = CountAgreements(state.TradeAgreements);
    const Holdings holdings = AddUpPlanets(state);
    // The pool's planets are counted, and bring nothing.
    TakeHolding(state.Player(NeutralOwner), {.Planets = holdings[NeutralOwner].Planets}, 0);
    for (int number = 1; number <= MaxPlayers; ++number) {
        TakeHolding(state.Player(number), holdings[static_cast<std::size_t>(number)],
                    PellamToolsBonus(state, number));
    }
    for (int number = 1; number <= MaxPlayers; ++number) {
        ComputePlayer(state, number, holdings[static_cast<std::size_t>(number)].AltheranHomes);
    }
}

} // namespace ksm
