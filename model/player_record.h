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

/// Derived: recomputed as a whole by UpdateValues, wide enough for every legal planet list.
struct PlayerFigures {
    int Resources = 0;
    int PlanetResources = 0;
    int Influence = 0;
    int PlanetInfluence = 0;
    int PlanetCount = 0;
    int AltheranHomes = 0; ///< how many of the planets are home to the Altheran
    int RedDiscount = 0;
    int BlueDiscount = 0;
    int GreenDiscount = 0;
    // The figures that exist only as captions. Until the first UpdateValues they read as designed.
    int Credits = 0;
    int RedTech = BaseTechnologyCost;
    int BlueTech = BaseTechnologyCost;
    int GreenTech = BaseTechnologyCost;
    int YellowTech = BaseTechnologyCost;

    bool operator==(const PlayerFigures&) const = default;
};

struct PlayerRecord {
    PlayerFigures Figures;

    // What the player is called.
    std::string Name; ///< UTF-8, as typed in the name dialog
    /// Whether a name was ever typed, be it an empty one. Until then the player's labels read
    /// "Player 3" and the like.
    bool Named = false;
    std::string ShortName;   ///< UTF-8, caption of the trade label
    ColourPair NameColours;  ///< of the name in the player table
    ColourPair TradeColours; ///< of the trade label and of the lines of agreements

    // What the player has.
    ksm::Race Race = ksm::Race::None;
    std::uint8_t RedCost = BaseTechnologyCost; ///< the four base costs follow from the race
    std::uint8_t BlueCost = BaseTechnologyCost;
    std::uint8_t YellowCost = BaseTechnologyCost;
    std::uint8_t GreenCost = BaseTechnologyCost;
    int SpaceDocks = 1; ///< 0..10
    bool Enviro = false;
    bool PellamTools = false;
    bool Micro = false;
    // Whether a box can be ticked depends on what happened before, not only on what is ticked.
    bool PellamToolsEnabled = false;
    bool MicroEnabled = false;
    PlanetIndexList PlanetList = EmptyPlanetList();

    /// The number of players when the player was last among them, which says where the player's
    /// trade label stands. Setup can leave a player out who has agreements: the label is hidden
    /// then and stays where it was, and the lines of the agreements end there.
    int TradeRing = MaxPlayers;

    bool operator==(const PlayerRecord&) const = default;
};

} // namespace ksm
