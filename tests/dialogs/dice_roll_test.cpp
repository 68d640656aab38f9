#include "dialogs/dice_roll.h"

#include <gtest/gtest.h>
#include <vector>

namespace ksm {
namespace {

TEST(DiceRoll, DrawsAPlaceAndForAFreeOneAValueFromOneToTen) {
    const std::tuple<int, std::vector<double>, DicePlaces> rows[]{
        {1, {0.0, 0.0}, {1}},
        {1, {0.9999, 0.9999}, {0, 0, 0, 0, 0, 0, 10}},
        {2, {0.5, 0.1, 0.51, 0.2, 0.95}, {0, 10, 0, 2}}};
    for (const auto& [dice, fractions, places] : rows) {
        std::size_t drawn = 0;
        const auto draw = [&, &next = fractions] { return next.at(drawn++); };
        EXPECT_EQ(RollDice(dice, draw), places);
        EXPECT_EQ(drawn, fractions.size()) << "a place that is taken costs its draw only";
    }
}

} // namespace
} // namespace ksm
