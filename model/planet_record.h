// One planet of the board.
#pragma once

#include "model/bounds.h"

#include <array>
#include <cstdint>
#include <string>

namespace ksm {

/// The colour of technology that a planet makes cheaper for its owner.
enum class Specialty : std::uint8_t { None = 0, Blue = 1, Green = 2, Red = 3 };
inline constexpr std::size_t SpecialtyCount = 4;

struct PlanetRecord {
    std::string Name; ///< UTF-8, exactly as in the planet list
    std::uint8_t Resources = 0;
    std::uint8_t Influence = 0;
    ksm::Specialty Specialty = ksm::Specialty::None;
    std::uint8_t Owner = NeutralOwner; ///< 0 = unowned pool, 1..10 = player

    bool operator==(const PlanetRecord&) const = default;
};

using PlanetTable = std::array<PlanetRecord, MaxPlanets>;

} // namespace ksm
