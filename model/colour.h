// Colours of the game as plain red, green and blue.
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

inline constexpr Colour Black{0, 0, 0};
inline constexpr Colour White{255, 255, 255};

} // namespace ksm
