#include "economy/column_place.h"

#include <gtest/gtest.h>

namespace ksm {
namespace {

TEST(PlaceOfColumn, SpreadsTheColumnsEvenly) {
    const std::tuple<int, int, ColumnPlace> rows[]{
        {1, 2, {80, 279, 278, 200}},  {2, 2, {360, 279, 278, 480}}, {2, 3, {266, 185, 184, 339}},
        {3, 3, {453, 185, 184, 526}}, {1, 6, {80, 92, 91, 106}},    {6, 6, {546, 92, 91, 572}},
        {4, 10, {248, 55, 54, 256}},  {10, 10, {584, 55, 54, 592}}};
    for (const auto& [player, players, place] : rows) {
        EXPECT_EQ(PlaceOfColumn(player, players), place) << player << " of " << players;
    }
}

} // namespace
} // namespace ksm
