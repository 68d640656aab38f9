#include "trade/ring.h"

#include "model/bounds.h"

#include <array>

namespace ksm {

namespace {

using Ring = std::array<Point, MaxPlayers>;

// The trade labels of 2, 3, ... 10 players, clockwise.
// clang-format off
constexpr std::array<Ring, MaxPlayers - MinPlayers + 1> Rings{{
    {{{45, 89}, {165, 89}}},
    {{{101, 37}, {165, 133}, {37, 133}}},
    {{{29, 45}, {165, 45}, {165, 141}, {29, 141}}},
    {{{13, 89}, {77, 21}, {165, 45}, {165, 133}, {77, 157}}},
    {{{13, 89}, {61, 21}, {141, 21}, {189, 89}, {141, 157}, {61, 157}}},
    {{{5, 89}, {53, 29}, {133, 21}, {189, 53}, {189, 117}, {133, 157}, {53, 149}}},
    {{{5, 89}, {37, 37}, {101, 21}, {165, 37}, {197, 89}, {165, 141}, {101, 157}, {37, 141}}},
    {{{5, 89}, {29, 45}, {93, 21}, {149, 29}, {189, 61}, {189, 109}, {149, 149}, {93, 157},
      {29, 133}}},
    {{{5, 89}, {29, 45}, {77, 21}, {125, 21}, {173, 45}, {197, 89}, {173, 133}, {125, 157},
      {77, 157}, {29, 133}}},
}};
// clang-format on

} // namespace

Point PlaceInRing(int player, int players) {
    const Ring& ring = Rings.at(static_cast<std::size_t>(players - MinPlayers));
    return ring.at(static_cast<std::size_t>(player - 1));
}

} // namespace ksm
