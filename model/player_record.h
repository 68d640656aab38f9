// What the game keeps for one player slot.
#pragma once

#include "model/bounds.h"
#include "model/colour.h"
#include "model/race.h"

#include <array>
#include <cstdint>
#include <string>

namespace ksm {

/// Planet indices packed from slot 0, `NoPlanet` in every slot behind them.
using PlanetIndexList = std::array<std::uint8_t, MaxPlanets>;

constexpr PlanetIndexList EmptyPlanetList() {
    PlanetIndexList list{};
    list.fill(NoPlanet);
    return list;
}

struct PlayerRecord {
    // Inputs.
    std::string Name; ///< UTF-8, as typed in the name dialog; empty until then
    PlanetIndexList PlanetList = EmptyPlanetList();
    std::uint8_t RedCost = BaseTechnologyCost;
    std::uint8_t BlueCost = BaseTechnologyCost;
    std::uint8_t YellowCost = BaseTechnologyCost;
    std::uint8_t GreenCost = BaseTechnologyCost;

    // Derived: recomputed as a whole by UpdateValues, wide enough for every legal planet list.
    int Resources = 0;
    int PlanetResources = 0;
    int Influence = 0;
    int PlanetInfluence = 0;
    int PlanetCount = 0;
    int RedDiscount = 0;
    int BlueDiscount = 0;
    int GreenDiscount = 0;
    // The figures that exist only as captions. Until the first UpdateValues they read as designed.
    int Credits = 0;
    int RedTech = BaseTechnologyCost;
    int BlueTech = BaseTechnologyCost;
    int GreenTech = BaseTechnologyCost;
    int YellowTech = BaseTechnologyCost;

    bool operator==(const PlayerRecord&) const = default;
};

/// The inputs that a player's controls stand for.
struct PlayerControls {
    ksm::Race Race = ksm::Race::None;
    /// Set by the name dialog; until then the player's labels read "Player 3" and the like.
    bool Named = false;
    std::string ShortName; ///< UTF-8, caption of the trade label
    ColourPair NameColours;
    ColourPair TradeColours;
    /// For how many players the ring was laid out in which the trade label last stood: a hidden
    /// label keeps its place, and lines may end there.
    int TradeRing = MaxPlayers;
    int SpaceDocks = 1; ///< 0..10
    bool Enviro = false;
    bool PellamTools = false;
    bool Micro = false;
    // Whether a box can be ticked depends on what happened before, not only on what is ticked.
    bool PellamToolsEnabled = false;
    bool MicroEnabled = false;

    bool operator==(const PlayerControls&) const = default;
};

} // namespace ksm
