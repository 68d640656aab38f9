#include "planets/owner_place.h"

#include <gtest/gtest.h>

namespace ksm {
namespace {

TEST(OwnerPlace, SpacesTheOwnersOnTheBoard) {
    for (const auto& [players, first, last] : {std::tuple{2, 36, 61}, std::tuple{6, 36, 161},
                                               std::tuple{7, 31, 157}, std::tuple{10, 31, 166}}) {
        EXPECT_EQ(TopOfOwner(1, players), first) << players;
        EXPECT_EQ(TopOfOwner(players, players), last) << players;
    }
}

} // namespace
} // namespace ksm
