#include "model/history.h"
#include "trade/trade_agreements.h"
#include "trade/trade_laws.h"

#include <gtest/gtest.h>

namespace ksm {
namespace {

/// A game that is played and recorded.
struct Played : Game {
    History Steps{*this};

    void Dock(int docks) {
        Player(1).SpaceDocks = docks;
        Steps.Record(*this);
    }
    void Click(int player) {
        TradePlayer_Click(*this, player);
        Steps.Record(*this);
    }
    void Add() {
        AddTAbutton_Click(*this);
        Steps.Record(*this);
    }
    void Undo() { static_cast<Game&>(*this) = Steps.Undo(); }
    void Redo() { static_cast<Game&>(*this) = Steps.Redo(); }
};

TEST(History, GoesBackAndForthAndForgetsWhatWasUndone) {
    Played game;
    EXPECT_FALSE(game.Steps.CanUndo() || game.Steps.CanRedo());
    for (const int docks : {2, 3, 4}) {
        game.Dock(docks);
    }
    game.Undo();
    game.Undo();
    EXPECT_EQ(game.Player(1).SpaceDocks, 2);
    game.Redo();
    EXPECT_EQ(game.Player(1).SpaceDocks, 3);
    EXPECT_EQ(game.Steps.RedoText(), "Space Docks, Player 1");
    game.Dock(9);
    EXPECT_FALSE(game.Steps.CanRedo());
    game.Undo();
    EXPECT_EQ(game.Player(1).SpaceDocks, 3);
    game.Steps.Restart(game);
    EXPECT_FALSE(game.Steps.CanUndo() || game.Steps.CanRedo());
}

TEST(History, WhatIsHeldOrDoneInAWindowIsOneStep) {
    Played game;
    game.Steps.BeginStep();
    for (const int docks : {2, 1, 3, 4}) {
        game.Dock(docks); // back where it began in between
    }
    game.Steps.EndStep();
    game.Dock(5);
    game.Undo();
    EXPECT_EQ(game.Player(1).SpaceDocks, 4);
    game.Undo();
    EXPECT_EQ(game.Player(1).SpaceDocks, 1);
    EXPECT_FALSE(game.Steps.CanUndo());

    game.Steps.BeginStep();
    game.Dock(7);
    game.Dock(1);
    EXPECT_FALSE(game.Steps.CanUndo()) << "a step that changed nothing is none";
    game.Dock(8);
    game.Undo();
    game.Dock(3);
    game.Undo();
    EXPECT_EQ(game.Player(1).SpaceDocks, 1) << "what follows an undo does not change the past";
}

TEST(History, ASelectionIsOneStepThatCanBeTakenBackInItsMiddle) {
    Played game;
    game.Add();
    game.Click(3);
    EXPECT_EQ(game.Steps.UndoText(), "Add");
    game.Undo();
    EXPECT_EQ(game.TradeMode, TradeMode::Idle);
    EXPECT_EQ(game.TradeInfo, "\r\nPress Add to make a Trade Agreement");
    game.Redo();
    game.Click(5);
    EXPECT_TRUE(HaveAgreement(game, 3, 5));
    game.Undo();
    EXPECT_FALSE(HaveAgreement(game, 3, 5) || game.Steps.CanUndo());
    game.Redo();

    game.Add();
    game.Click(5);
    game.Click(3);
    EXPECT_EQ(game.TradeInfo, " and  already have a TA");
    game.Undo();
    EXPECT_FALSE(game.Steps.CanUndo()) << "what was refused is no step";
    EXPECT_FALSE(HaveAgreement(game, 3, 5));
}

TEST(History, ALawSwitchedOnInASelectionTakesItOver) {
    Played game;
    game.Add();
    Tres_Click(game);
    game.Steps.Record(game);
    game.Click(2);
    game.Click(7);
    EXPECT_EQ(game.Steps.UndoText(), "Economic Independance");
    game.Undo();
    EXPECT_FALSE(game.Laws.EconomicIndependence || game.Steps.CanUndo());
}

} // namespace
} // namespace ksm
