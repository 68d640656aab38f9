// Where a player's column stands in the player table.
#pragma once

namespace ksm {

/// The left edges and widths of one player's column, in pixels of the main window.
struct ColumnPlace {
    int Left = 0;       ///< X: name, race and the line at the column's left border
    int NameWidth = 0;  ///< name and race label
    int RaceWidth = 0;  ///< drop-down list, which starts at X + 1
    int FigureLeft = 0; ///< V: the figures; the controls below them are offset from it

    bool operator==(const ColumnPlace&) const = default;
};

/// The column of player 1..`players` in a game of 2 to 10.
ColumnPlace PlaceOfColumn(int player, int players);

} // namespace ksm
