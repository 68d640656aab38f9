// A table with one element for each player, indexed by the player number.
#pragma once

#include "model/bounds.h"

#include <array>
#include <cassert>
#include <cstddef>

namespace ksm {

/// Elements 1..10; debug builds stop at any other index.
template<typename T>
class PerPlayer {
public:
    T& operator[](int player) { return elements[Place(player)]; }
    const T& operator[](int player) const { return elements[Place(player)]; }

    // From player 1 to player 10.
    auto begin() { return elements.begin(); }
    auto end() { return elements.end(); }
    auto begin() const { return elements.begin(); }
    auto end() const { return elements.end(); }

    bool operator==(const PerPlayer&) const = default;

private:
    static std::size_t Place(int player) {
        assert(player >= 1 && player <= MaxPlayers);
        return static_cast<std::size_t>(player - 1);
    }

    std::array<T, MaxPlayers> elements{};
};

} // namespace ksm
