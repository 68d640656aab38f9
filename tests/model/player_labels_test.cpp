#include "model/game_state.h"
#include "model/player_labels.h"

#include <gtest/gtest.h>

namespace ksm {
namespace {

TEST(PlayerLabels, APlayerIsCalledByTheDesignTextUntilNamedEvenWithNothing) {
    GameState state;
    EXPECT_EQ(PlayerCaption(state, 10), "Player10");
    EXPECT_EQ(OwnerCaption(state, 10), "Player 10");
    state.Player(10).Named = true;
    EXPECT_EQ(PlayerCaption(state, 10), "");
    state.Player(10).Name = "Ada";
    EXPECT_EQ(OwnerCaption(state, 10), "Ada");
}

} // namespace
} // namespace ksm
