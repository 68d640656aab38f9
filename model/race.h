// The six races a player can choose.
#pragma once

#include <array>
#include <cstdint>
#include <string_view>

namespace ksm {

enum class Race : std::uint8_t { Altheran, Quorvi, IthVeran, Dravik, Khorrum, Orrun, None };

/// Captions in the order of the enumeration; `Race::None` reads "Race" until a choice is made.
inline constexpr std::array<std::string_view, 7> RaceCaptions{
    "Altheran", "Quorvi", "Ith-Veran", "Dravik", "Khorrum", "Orrun", "Race"};
inline constexpr int RaceCount = 6;

constexpr std::string_view Caption(Race race) {
    return RaceCaptions[static_cast<std::size_t>(race)];
}

} // namespace ksm
