#include "economy/value_update.h"

#include "economy/bonuses.h"

#include <algorithm>
#include <array>
#include <numeric>
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
        agreements += static_cast<int>(std::ranges::count(row, Agreement));
    }
    return agreements;
}

Holdings AddUpPlanets(const Game& game) {
    Holdings holdings;
    for (const PlanetRecord& planet : game.LoadedPlanets()) {
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

int CountPlanets(const Holding& holding) {
    return std::reduce(holding.Planets.begin(), holding.Planets.end());
}

void SetPlanetFigures(PlayerFigures& player, const Holding& holding, int pellamTools) {
    const auto resources = [&](Specialty specialty) {
        const auto place = static_cast<std::size_t>(specialty);
        return holding.Resources[place] + pellamTools * holding.Planets[place];
    };
    player.PlanetCount = CountPlanets(holding);
    player.AltheranHomes = holding.AltheranHomes;
    player.Influence = player.PlanetInfluence = holding.Influence;
    player.RedDiscount = resources(Specialty::Red);
    player.BlueDiscount = resources(Specialty::Blue);
    player.GreenDiscount = resources(Specialty::Green);
    player.Resources = player.PlanetResources = resources(Specialty::None) + player.RedDiscount +
                                                player.BlueDiscount + player.GreenDiscount;
}

void ComputeCosts(const Game& game, PlayerRecord& player) {
    PlayerFigures& figures = player.Figures;
    figures.RedDiscount = std::min<int>(figures.RedDiscount, player.RedCost);
    figures.BlueDiscount = std::min<int>(figures.BlueDiscount, player.BlueCost);
    figures.GreenDiscount = std::min<int>(figures.GreenDiscount, player.GreenCost);
    figures.RedTech = player.RedCost - figures.RedDiscount + game.RedModifier - NeutralModifier;
    figures.BlueTech = player.BlueCost - figures.BlueDiscount + game.BlueModifier - NeutralModifier;
    figures.GreenTech =
        player.GreenCost - figures.GreenDiscount + game.GreenModifier - NeutralModifier;
    figures.YellowTech = player.YellowCost + game.YellowModifier - NeutralModifier;
}

void ComputePlayer(Game& game, int number) {
    PlayerFigures& figures = game.Player(number).Figures;
    figures.Influence +=
        EnviroCompBonus(game, number) + OrrunBonus(game, number) + AltheranBonus(game, number);
    if (game.Laws.LabourUnion) {
        std::swap(figures.Resources, figures.Influence);
        figures.PlanetResources = figures.Resources;
    }
    const PartnerSet partners = TradePartners(game, number);
    figures.Credits = figures.PlanetResources + TradeBonus(game, number, partners) +
                      FreeTradeBonus(game, partners) + MicroTechBonus(game, number, partners);
    ComputeCosts(game, game.Player(number));
}

} // namespace

void UpdateValues(Game& game) {
    game.TradeCount = CountAgreements(game.TradeAgreements);
    const Holdings holdings = AddUpPlanets(game);
    // The pool's planets are counted, and bring nothing.
    game.Player(NeutralOwner).Figures.PlanetCount = CountPlanets(holdings[NeutralOwner]);
    for (int number = 1; number <= MaxPlayers; ++number) {
        SetPlanetFigures(game.Player(number).Figures, holdings[static_cast<std::size_t>(number)],
                         PellamToolsBonus(game, number));
    }
    for (int number = 1; number <= MaxPlayers; ++number) {
        ComputePlayer(game, number);
    }
}

} // namespace ksm
