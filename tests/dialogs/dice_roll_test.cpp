#include "dialogs/dice_roll.h"

#include <gtest/gtest.h>
#include <vector>

namespace ksm {
namespace {

TEST(DiceRoll, DrawsAPlaceAndForAFreeOneAValueFromOneToTen) {
    struct Row {
        int Dice;
        std::vector<double> Fractions;
        DicePlaces Places;
    };
    const Row rows[]{{1, {0.0, 0.0}, {1}},
                     {1, {0.9999, 0.9999}, {0, 0, 0, 0, 0, 0, 10}},
                     {2, {0.5, 0.1, 0.51, 0.2, 0.95}, {0, 10, 0, 2}}};
    for (const Row& row : rows) {
        std::size_t drawn = 0;
        EXPECT_EQ(RollDice(row.Dice, [&] { return row.Fractions.at(drawn++); }), row.Places);
        EXPECT_EQ(drawn, row.Fractions.size()) << "a place that is taken costs its draw only";
    }
}

} // namespace
} // namespace ksm
