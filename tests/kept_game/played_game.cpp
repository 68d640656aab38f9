// Goes on with the game that is kept in the current folder, or begins a new one, and plays at
// random until it is killed. Prints what the game is at first and after each change.
//
//   ksm_played_game SEED

#include "controls/look.h"
#include "saves/game_file.h"
#include "saves/kept_files.h"
#include "saves/kept_game.h"
#include "tests/random_play.h"

#include <QApplication>
#include <QCryptographicHash>

#include <iostream>

namespace {

/// Short, and the same for the same game and notes.
void Print(ksm::GameState state) {
    state.View = {};
    const auto hash = QCryptographicHash::hash(*ksm::WriteGame(state), QCryptographicHash::Sha1);
    std::cout << hash.toHex().toStdString() << std::endl;
}

} // namespace

int main(int argc, char* argv[]) {
    QApplication application(argc, argv);
    ksm::ApplyLook();
    const auto read = ksm::LoadGameFile(ksm::KeptGameName);
    const ksm::GameState start = read ? *read : ksm::GameOfTwentyPlanets();
    ksm::KeptGame kept(start);
    ksm::GameWindow game(start, &kept);
    QObject::connect(&game.window, &ksm::Korvane::Changed, [&] { Print(game.state); });
    Print(start);
    ksm::RandomPlay play(game, static_cast<unsigned>(std::atoi(argv[1])));
    for (;;) {
        play.Step();
    }
}
