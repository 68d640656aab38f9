// Plays at random on a main window, through its controls, as a person would.
#pragma once

#include "tests/game_window.h"

#include <random>

namespace ksm {

class RandomPlay {
public:
    RandomPlay(GameWindow& played, unsigned seed) : game(played), random(seed) {}

    /// Does one thing that a person can do just then.
    void Step();

    /// Drags the planet in a row of the board onto an owner.
    void Drag(int row, int owner);

private:
    void SetUpSomething();
    void PlaySomething();
    void TradeSomething();
    void DragSomething();
    void MoveOver(QWidget* row, const QWidget* target);
    void NameSomebody();
    void ModifyCosts();
    void WriteNotes();
    int Pick(int least, int most) {
        return std::uniform_int_distribution<int>(least, most)(random);
    }
    int Player() { return Pick(1, game.state.NumPlayers); }

    GameWindow& game;
    std::mt19937 random;
};

} // namespace ksm
