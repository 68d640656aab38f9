// Where the owner labels stand on the planet board.
#pragma once

namespace ksm {

/// The top of the label of player 1..`players` in a game of 2 to 10, in pixels of the board.
constexpr int TopOfOwner(int player, int players) {
    return players > 6 ? 150 / players * (player - 1) + 31 : 25 * (player - 1) + 36;
}

} // namespace ksm
