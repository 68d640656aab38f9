// Where the owner labels stand on the planet board.
#pragma once

namespace ksm {

/// The top of the label of player 1..`players` in a game of 2 to 10, in pixels of the board.
int TopOfOwner(int player, int players);

} // namespace ksm
