#include "economy/column_place.h"

namespace ksm {

namespace {

constexpr int TableLeft = 80;
constexpr int TableWidth = 560;

} // namespace

ColumnPlace PlaceOfColumn(int player, int players) {
    const int share = TableWidth / players;
    // The whole product is divided, so that the columns of three players start at 80, 266 and 453.
    const int left = (player - 1) * TableWidth / players + TableLeft;
    return {.Left = left,
            .NameWidth = share - 1,
            .RaceWidth = share - 2,
            .FigureLeft = TableWidth / 2 / players + left - 20};
}

} // namespace ksm
