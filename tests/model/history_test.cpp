#include "model/history.h"

#include <functional>
#include <gtest/gtest.h>
#include <map>

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
    void Select(TradeMode mode, int first) {
        state.Game.TradeMode = mode;
        state.Game.TradeFirst = first;
        history.Record(state.Game);
    }
    void Load(int docks, const std::string& notes) {
        const std::string before = state.NotesText;
        state.Game.Player(1).SpaceDocks = docks;
        state.NotesText = notes;
        history.RecordLoad(state, before);
        history.Record(state.Game); // as every change is
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
    // A digit is a number of space docks; what the other signs do stands below.
    const std::pair<const char*, std::vector<int>> rows[]{
        {"2{324{56}}7", {7, 6, 4, 2, 1}}, // back where it began in between, and one within another
        {"{2}~3}{45}", {5, 3, 1}},
        {"{2}9~3}", {3, 9, 2, 1}},
        {"{2<34}", {4, 1}},
        {"{2<>3}", {3, 2, 1}},
        {"{2}!~3}", {3, 2}}};
    for (const auto& [deeds, docks] : rows) {
        Steps steps;
        const std::map<char, std::function<void()>> verbs{
            {'{', [&] { steps.history.BeginStep(); }},
            {'}', [&] { steps.history.EndStep(); }},
            {'~', [&] { steps.history.ResumeStep(); }},
            {'!', [&] { steps.history.Restart(steps.state.Game); }},
            {'<', [&] { steps.history.Undo(steps.state); }},
            {'>', [&] { steps.history.Redo(steps.state); }}};
        for (const char deed : std::string_view(deeds)) {
            const auto verb = verbs.find(deed);
            verb == verbs.end() ? steps.Docks(deed - '0') : verb->second();
        }
        EXPECT_FALSE(steps.history.CanRedo());
        EXPECT_EQ(steps.Back(), docks) << deeds;
    }
}

TEST(History, ALoadIsAStepOfItsOwnAndTakesItsNotesAlong) {
    Steps steps;
    steps.state.NotesText = "mine";
    steps.Docks(2);
    steps.Load(5, "theirs");
    for (const auto& [notes, undone] :
         {std::pair{"theirs", "mine"}, std::pair{"typed since", "typed since"}}) {
        steps.state.NotesText = notes;
        steps.history.Undo(steps.state);
        EXPECT_EQ(steps.state.NotesText, undone);
        EXPECT_EQ(steps.state.Game.Player(1).SpaceDocks, 2);
        EXPECT_EQ(steps.history.RedoText(), "Load Game");
        steps.history.Redo(steps.state);
        EXPECT_EQ(steps.state.NotesText, notes);
    }
    steps.Load(5, "other notes");
    steps.Load(5, "other notes"); // which is the same
    EXPECT_EQ(steps.Back(), (std::vector{5, 5, 2, 1}));
}

TEST(History, ASelectionBelongsToTheStepThatBeganItButNotToALoad) {
    Steps steps;
    steps.state.Game.IndepFirst = 1; // of a pair chosen before
    steps.state.Game.TradeMode = TradeMode::AddFirst;
    steps.Load(5, "");
    steps.Select(TradeMode::AddPartner, 3);
    steps.state.Game.Cell(3, 5) = Agreement;
    steps.Select(TradeMode::Idle, 3);
    EXPECT_EQ(steps.history.UndoTexts(10),
              (std::vector<std::string>{"agreement of Player 3 and Player 5", "Load Game"}));
    EXPECT_EQ(steps.history.UndoTexts(1).size(), 1U);
    steps.history.Undo(steps.state);
    EXPECT_EQ(steps.state.Game.TradeMode, TradeMode::AddFirst);
    steps.Select(TradeMode::AddPartner, 3);
    steps.Docks(4);
    EXPECT_EQ(steps.history.UndoTexts(10),
              (std::vector<std::string>{"Space Docks, Player 1", "Add", "Load Game"}))
        << "what else is done while something is selected is a step";
    EXPECT_FALSE(steps.history.CanRedo());
    steps.history.Restart(steps.state.Game);
    steps.Select(TradeMode::RemoveFirst, 3);
    steps.Select(TradeMode::RemovePartner, 4);
    EXPECT_EQ(steps.history.UndoTexts(10), std::vector<std::string>{"Remove"});
}

} // namespace
} // namespace ksm
