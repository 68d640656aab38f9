// The colours of the game, as plain red, green and blue.
#pragma once

#include <cstdint>

namespace ksm {

struct Colour {
    std::uint8_t Red = 0;
    std::uint8_t Green = 0;
    std::uint8_t Blue = 0;

    bool operator==(const Colour&) const = default;
};

/// What a label is painted with.
struct ColourPair {
    Colour Back;
    Colour Text;

    bool operator==(const ColourPair&) const = default;
};

namespace colour {
inline constexpr Colour Black{0, 0, 0};
inline constexpr Colour White{255, 255, 255};
inline constexpr Colour Grey{128, 128, 128};
inline constexpr Colour Red{255, 0, 0};
inline constexpr Colour DarkRed{192, 0, 0};
inline constexpr Colour Pink{255, 128, 128};
inline constexpr Colour Orange{255, 128, 0};
inline constexpr Colour Yellow{255, 255, 0};
inline constexpr Colour DarkYellow{192, 192, 0};
inline constexpr Colour Green{0, 255, 0};
inline constexpr Colour DarkGreen{0, 128, 0};
inline constexpr Colour Teal{0, 128, 128};
inline constexpr Colour Blue{0, 0, 255};
inline constexpr Colour DarkBlue{0, 0, 192};
inline constexpr Colour Navy{0, 0, 128};
inline constexpr Colour Magenta{255, 0, 255};
// Of planets with a specialty.
inline constexpr Colour BluePlanet{0x40, 0x40, 0xFF};
inline constexpr Colour GreenPlanet{0x00, 0xA0, 0x00};
inline constexpr Colour RedPlanet{0xFF, 0x60, 0x00};
} // namespace colour

} // namespace ksm
