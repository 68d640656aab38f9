#include "model/history.h"

#include <gtest/gtest.h>

namespace ksm {
namespace {

TEST(History, WhatIsOpenedIsOneStepUntilItEnds) {
    // Space docks of player 1; { } opens and ends a step, ~ goes on with the last one, < takes one
    // back.
    const std::pair<const char*, std::vector<int>> rows[]{
        {"2{324{56}}7", {7, 6, 4, 2, 1}}, // back where it began in between, and one within another
        {"{2}~3}", {3, 1}},
        {"{2}9~3}", {3, 9, 2, 1}},
        {"{2<34}", {4, 1}}};
    for (const auto& [deeds, docks] : rows) {
        GameState state;
        History history(state.Game);
        int& count = state.Game.Player(1).SpaceDocks;
        for (const char deed : std::string_view(deeds)) {
            if (deed >= '0' && deed <= '9') {
                count = deed - '0';
                history.Record(state.Game);
                continue;
            }
            deed == '{'   ? history.BeginStep()
            : deed == '}' ? history.EndStep()
            : deed == '~' ? history.ResumeStep()
                          : history.Undo(state);
        }
        EXPECT_FALSE(history.CanRedo());
        std::vector<int> back{count};
        for (; history.CanUndo(); back.push_back(count)) {
            history.Undo(state);
        }
        EXPECT_EQ(back, docks) << deeds;
    }
}

} // namespace
} // namespace ksm
