// The six races a player can choose, and what each brings.
#pragma once

#include "model/bounds.h"

#include <array>
#include <cstdint>
#include <string_view>

namespace ksm {

enum class Race : std::uint8_t { Altheran, Quorvi, IthVeran, Dravik, Khorrum, Orrun, None };
inline constexpr int RaceCount = 6;

struct RaceTraits {
    std::string_view Caption;
    std::uint8_t RedCost = BaseTechnologyCost;
    std::uint8_t OtherCosts = BaseTechnologyCost; ///< blue, yellow and green
    bool Enviro = false;                          ///< whether Enviro Comp. is owned from the start
    std::array<std::string_view, 3> Homes{};      ///< names of home planets, empty ones at the end
};

/// In the order of the enumeration.
inline constexpr std::array<RaceTraits, RaceCount + 1> Races{{
    {"Altheran", 30, 30, true, {"Quessin"}},
    {"Quorvi", 30, 30, true, {"Belthune", "Miradel", "Ostrane"}},
    {"Ith-Veran", 40, 20, true, {"Ith", "Veran"}},
    {"Dravik", 30, 30, false, {"Ossa Prime", "Calix Terra"}},
    {"Khorrum", 30, 30, false, {"Sennavor", "Gor'Tash"}},
    {"Orrun", 30, 30, false, {"Pellis Tau", "Pellis Ren"}},
    {"Race"}, // until a choice is made
}};

constexpr const RaceTraits& TraitsOf(Race race) { return Races[static_cast<std::size_t>(race)]; }

} // namespace ksm
