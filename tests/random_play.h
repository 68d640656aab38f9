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

private:
    void SetUp();
    void Look();
    void Drag();
    void NameSomebody();
    void ModifyCosts();
    void WriteNotes();

    int Pick(int least, int most) {
        return std::uniform_int_distribution<int>(least, most)(random);
    }
    const char* Any(const std::vector<const char*>& names) {
        return names[static_cast<std::size_t>(Pick(0, static_cast<int>(names.size()) - 1))];
    }
    int Player() { return Pick(1, game.state.Game.NumPlayers); }
    char Letter() { return static_cast<char>(Pick('a', 'z')); }

    GameWindow& game;
    std::mt19937 random;
};

} // namespace ksm
