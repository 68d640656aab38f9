// Where the per-player controls stand for a number of players.
#pragma once

#include "model/per_player.h"

namespace ksm {

/// The left edges and widths of one player's column, in pixels of the main window.
struct ColumnPlace {
    int Left = 0;       ///< X: name, race and the line at the column's left border
    int NameWidth = 0;  ///< name and race label
    int RaceWidth = 0;  ///< drop-down list, which starts at X + 1
    int FigureLeft = 0; ///< V: the figures; the controls below them are offset from it

    bool operator==(const ColumnPlace&) const = default;
};

/// The top left corner of a trade label, in pixels of the trade panel.
struct RingPlace {
    int Left = 0;
    int Top = 0;

    bool operator==(const RingPlace&) const = default;
};

/// Elements beyond `Players` mean nothing: hidden controls stay where they were.
struct PlayerLayout {
    int Players = 0;
    PerPlayer<ColumnPlace> Columns;
    PerPlayer<int> OwnerTops; ///< tops of the owner labels on the planet board
};

/// Where the player's trade label stands in the ring of that many players, 2 to 10.
RingPlace PlaceInRing(int player, int players);

/// The layout for 2 to 10 players.
PlayerLayout LayoutForPlayerCount(int players);

} // namespace ksm
