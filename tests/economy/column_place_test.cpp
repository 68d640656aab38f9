#include "economy/column_place.h"

#include <gtest/gtest.h>

namespace ksm {
namespace {

TEST(ColumnPlace, SpreadsTheColumnsOverTheTable) {
    const std::tuple<int, std::vector<int>, int, int> rows[]{
        {2, {80, 360}, 279, 120},
        {3, {80, 266, 453}, 185, 73},
        {4, {80, 220, 360, 500}, 139, 50},
        {6, {80, 173, 266, 360, 453, 546}, 92, 26},
        {10, {80, 136, 192, 248, 304, 360, 416, 472, 528, 584}, 55, 8}};
    for (const auto& [players, lefts, nameWidth, figureOffset] : rows) {
        for (int player = 1; player <= players; ++player) {
            const int left = lefts.at(static_cast<std::size_t>(player - 1));
            EXPECT_EQ(PlaceOfColumn(player, players),
                      (ColumnPlace{left, nameWidth, nameWidth - 1, left + figureOffset}))
                << "player " << player << " of " << players;
        }
    }
}

} // namespace
} // namespace ksm
