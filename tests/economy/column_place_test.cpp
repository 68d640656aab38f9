#include "economy/column_place.h"

#include <gtest/gtest.h>

namespace ksm {
namespace {

TEST(ColumnPlace, SpreadsTheColumnsOverTheTable) {
    const std::tuple<std::vector<int>, int, int> rows[]{
        {{80, 136, 192, 248, 304, 360, 416, 472, 528, 584}, 55, 8},
        {{80, 360}, 279, 120},
        {{80, 266, 453}, 185, 73},
        {{80, 173, 266, 360, 453, 546}, 92, 26}};
    for (const auto& [lefts, nameWidth, figureOffset] : rows) {
        const auto players = static_cast<int>(lefts.size());
        for (int player = 0; const int left : lefts) {
            EXPECT_EQ(PlaceOfColumn(++player, players),
                      (ColumnPlace{left, nameWidth, nameWidth - 1, left + figureOffset}))
                << "player " << player << " of " << players;
        }
    }
}

} // namespace
} // namespace ksm
