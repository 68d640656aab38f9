#include "model/history.h"

#include <gtest/gtest.h>

namespace ksm {
namespace {

/// A game whose steps are space docks of player 1.
struct Steps {
    GameState state;
    History history{state.Game};

    void Docks(int docks) {
        state.Game.Player(1).SpaceDocks = docks;
        history.Record(state.Game);
    }
    /// The docks at each step, from the last one back to the beginning.
    std::vector<int> Back() {
        std::vector<int> docks{state.Game.Player(1).SpaceDocks};
        while (history.CanUndo()) {
            history.Undo(state);
            docks.push_back(state.Game.Player(1).SpaceDocks);
        }
        return docks;
    }
};

TEST(History, WhatIsOpenedIsOneStepUntilItEnds) {
    // Space docks; { } opens and ends a step, ~ goes on with the last one, < takes one back.
    const std::pair<const char*, std::vector<int>> rows[]{
        {"2{324{56}}7", {7, 6, 4, 2, 1}}, // back where it began in between, and one within another
        {"{2}~3}", {3, 1}},
        {"{2}9~3}", {3, 9, 2, 1}},
        {"{2<34}", {4, 1}}};
    for (const auto& [deeds, docks] : rows) {
        Steps steps;
        for (const char deed : std::string_view(deeds)) {
            deed == '{'   ? steps.history.BeginStep()
            : deed == '}' ? steps.history.EndStep()
            : deed == '~' ? steps.history.ResumeStep()
            : deed == '<' ? steps.history.Undo(steps.state)
                          : steps.Docks(deed - '0');
        }
        EXPECT_FALSE(steps.history.CanRedo());
        EXPECT_EQ(steps.Back(), docks) << deeds;
    }
}

} // namespace
} // namespace ksm
