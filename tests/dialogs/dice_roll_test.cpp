#include "dialogs/dice_roll.h"

#include <gtest/gtest.h>
#include <vector>

namespace ksm {
namespace {

TEST(RollDice, DrawsAPlaceAndThenAValueOnlyForAFreePlace) {
    // A place is drawn in sevenths, a value in tenths.
    const std::tuple<const char*, int, std::vector<double>, DicePlaces> rolls[]{
        {"one die", 1, {0.58, 0.61}, {0, 0, 0, 0, 7, 0, 0}},
        {"both ends", 2, {0.0, 0.0, 0.9999, 0.9999}, {1, 0, 0, 0, 0, 0, 10}},
        {"a taken place costs its draw",
         2,
         {0.43, 0.11, 0.43, 0.44, 0.72, 0.81},
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
