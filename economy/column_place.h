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
constexpr ColumnPlace PlaceOfColumn(int player, int players) {
    constexpr int TableLeft = 80;
    constexpr int TableWidth = 560;
    const int share = TableWidth / players;
    // The whole product is divided, so that the columns of three players start at 80, 266 and 453.
    const int left = (player - 1) * TableWidth / players + TableLeft;
    return {.Left = left,
            .NameWidth = share - 1,
            .RaceWidth = share - 2,
            .FigureLeft = TableWidth / 2 / players + left - 20};
}

} // namespace ksm
