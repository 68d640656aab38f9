#include "dialogs/dice_roll.h"

#include <gtest/gtest.h>
#include <vector>

namespace ksm {
namespace {

// A place is drawn as p/7, a value as (v - 1)/10; a little more keeps clear of rounding.
double Place(int p) {
    return p / 7.0 + 0.001;
}
double Value(int v) {
    return (v - 1) / 10.0 + 0.001;
}

TEST(RollDice, DrawsAPlaceAndThenAValueOnlyForAFreePlace) {
    const std::tuple<const char*, int, std::vector<double>, DicePlaces> rolls[]{
        {"one die", 1, {Place(4), Value(7)}, {0, 0, 0, 0, 7, 0, 0}},
        {"both ends", 2, {0.0, 0.0, 0.999999, 0.999999}, {1, 0, 0, 0, 0, 0, 10}},
        {"a taken place is drawn again without a value",
         2,
         {Place(3), Value(2), Place(3), Place(3), Place(5), Value(9)},
         {0, 0, 0, 2, 0, 9, 0}},
    };
    for (const auto& [situation, dice, draws, places] : rolls) {
        std::size_t used = 0;
        const auto draw = [&used, &values = draws] { return values.at(used++); };
        EXPECT_EQ(RollDice(dice, draw), places) << situation;
        EXPECT_EQ(used, draws.size()) << situation;
    }
}

} // namespace
} // namespace ksm
