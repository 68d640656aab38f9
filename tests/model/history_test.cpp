#include "model/history.h"
#include "trade/trade_agreements.h"
#include "trade/trade_laws.h"

#include <gtest/gtest.h>

namespace ksm {
namespace {

constexpr int AddButton = 0;

/// A game that is played and recorded.
struct Played : Game {
    History Steps{*this};

    void Dock(std::initializer_list<int> counts) {
        for (const int docks : counts) {
            Player(1).SpaceDocks = docks;
            Steps.Record(*this);
        }
    }
    void Click(std::initializer_list<int> players) {
        for (const int player : players) {
            player == AddButton ? AddTAbutton_Click(*this) : void(TradePlayer_Click(*this, player));
            Steps.Record(*this);
        }
    }
    int Undo() {
        static_cast<Game&>(*this) = Steps.Undo();
        return Player(1).SpaceDocks;
    }
    int Redo() {
        static_cast<Game&>(*this) = Steps.Redo();
        return Player(1).SpaceDocks;
    }
};

TEST(History, GoesBackAndForthAndForgetsWhatWasUndone) {
    Played game;
    EXPECT_FALSE(game.Steps.CanUndo() || game.Steps.CanRedo());
    EXPECT_EQ(game.Steps.UndoText() + game.Steps.RedoText(), "");
    game.Dock({2, 3, 4});
    EXPECT_EQ(game.Undo(), 3);
    EXPECT_EQ(game.Undo(), 2);
    EXPECT_EQ(game.Redo(), 3);
    EXPECT_EQ(game.Steps.RedoText(), "Space Docks, Player 1");
    game.Dock({9});
    EXPECT_FALSE(game.Steps.CanRedo());
    EXPECT_EQ(game.Undo(), 3);
    game.Steps.Restart(game);
    EXPECT_FALSE(game.Steps.CanUndo() || game.Steps.CanRedo());
}

TEST(History, WhatIsHeldOrDoneInAWindowIsOneStep) {
    Played game;
    game.Steps.BeginStep();
    game.Steps.BeginStep();
    game.Dock({2, 1, 3, 4}); // back where it began in between
    game.Steps.EndStep();
    game.Dock({5});
    game.Steps.EndStep();
    game.Dock({6});
    EXPECT_EQ(game.Undo(), 5);
    EXPECT_EQ(game.Undo(), 1);
    EXPECT_FALSE(game.Steps.CanUndo());

    game.Steps.BeginStep();
    game.Dock({7, 1});
    EXPECT_FALSE(game.Steps.CanUndo()) << "a step that changed nothing is none";
    game.Dock({8});
    EXPECT_EQ(game.Undo(), 1);
    game.Dock({3});
    EXPECT_EQ(game.Undo(), 1) << "what follows an undo does not change the past";
}

TEST(History, ASelectionIsOneStepThatCanBeTakenBackInItsMiddle) {
    Played game;
    game.Click({AddButton, 3});
    EXPECT_EQ(game.Steps.UndoText(), "Add");
    game.Undo();
    EXPECT_EQ(game.TradeInfo, "\r\nPress Add to make a Trade Agreement");
    game.Redo();
    game.Click({5});
    EXPECT_TRUE(HaveAgreement(game, 3, 5));
    game.Undo();
    EXPECT_FALSE(HaveAgreement(game, 3, 5) || game.Steps.CanUndo());
    game.Redo();
    game.Click({AddButton, 5, 3});
    game.Undo();
    EXPECT_FALSE(game.Steps.CanUndo()) << "what was refused is no step";
    game.Click({AddButton, 4});
    game.Dock({7});
    game.Undo();
    EXPECT_EQ(game.Steps.UndoText(), "Add") << "what else is done in a selection is a step";
    Tres_Click(game);
    game.Steps.Record(game);
    game.Click({2, 7});
    EXPECT_EQ(game.Steps.UndoText(), "Economic Independance") << "takes the selection over";
    game.Undo();
    EXPECT_FALSE(game.Laws.EconomicIndependence || game.Steps.CanUndo());
}

} // namespace
} // namespace ksm
