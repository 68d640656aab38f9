#include "app/races.h"

#include "economy/tech_boxes.h"

#include <array>
#include <span>

namespace ksm {

namespace {

struct RaceGifts {
    std::uint8_t RedCost;
    std::uint8_t OtherCosts; ///< blue, yellow and green
    bool Enviro;
    std::array<std::string_view, 3> Homes; ///< empty names at the end
};

// In the order of the races.
constexpr std::array<RaceGifts, RaceCount> Gifts{{
    {30, 30, true, {"Quessin"}},
    {30, 30, true, {"Belthune", "Miradel", "Ostrane"}},
    {40, 20, true, {"Ith", "Veran"}},
    {30, 30, false, {"Ossa Prime", "Calix Terra"}},
    {30, 30, false, {"Sennavor", "Gor'Tash"}},
    {30, 30, false, {"Pellis Tau", "Pellis Ren"}},
}};

std::span<PlanetRecord> LoadedPlanets(GameState& state) {
    return {state.Planets.data(), static_cast<std::size_t>(state.NumPlanets)};
}

void SetEnviro(PlayerControls& controls, bool owned) {
    if (controls.Enviro != owned) {
        controls.Enviro = owned;
        UpdateTechBoxes(controls);
    }
}

} // namespace

void ChooseRace(GameState& state, int player, Race race) {
    const RaceGifts& gifts = Gifts.at(static_cast<std::size_t>(race));
    PlayerControls& controls = state.Controls[player];
    PlayerRecord& record = state.Player(player);
    controls.Race = race;
    record.RedCost = gifts.RedCost;
    record.BlueCost = record.YellowCost = record.GreenCost = gifts.OtherCosts;
    for (PlanetRecord& planet : LoadedPlanets(state)) {
        if (planet.Owner == player) {
            planet.Owner = NeutralOwner;
        }
    }
    SetEnviro(controls, gifts.Enviro);
    for (const std::string_view home : gifts.Homes) {
        if (!home.empty()) {
            AssignPlanetByName(state, home, player);
        }
    }
}

void AssignPlanetByName(GameState& state, std::string_view name, int player) {
    for (PlanetRecord& planet : LoadedPlanets(state)) {
        if (planet.Name == name) {
            planet.Owner = static_cast<std::uint8_t>(player);
        }
    }
}

} // namespace ksm
