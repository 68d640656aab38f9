#include "dialogs/dice_roll.h"

#include <gtest/gtest.h>

namespace ksm {
namespace {

TEST(RollDice, DrawsAPlaceThenAValueAndAPlaceOnlyWhereADieLies) {
    std::vector<double> draws{0.0, 0.0, 0.999, 0.999, 0.14, 0.15, 0.95};
    auto next = draws.begin();
    const DicePlaces places = RollDice(3, [&] { return *next++; });
    EXPECT_EQ(places, (DicePlaces{1, 10, 0, 0, 0, 0, 10}));
    EXPECT_TRUE(next == draws.end());
}

} // namespace
} // namespace ksm
