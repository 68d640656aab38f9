// Plays at random in the current folder, and keeps the game there, until it is killed. For each
// change that is done it prints what the game then is.
//
//   ksm_played_game SEED
//   ksm_played_game --load    prints what the kept game is, or why it cannot be loaded

#include "controls/look.h"
#include "saves/game_file.h"
#include "saves/kept_game.h"
#include "tests/random_play.h"

#include <QApplication>
#include <QCryptographicHash>

#include <iostream>

namespace {

/// Short, and the same for the same game and notes.
std::string Fingerprint(ksm::GameState state) {
    state.View = {};
    return QCryptographicHash::hash(ksm::WriteGame(state), QCryptographicHash::Sha1)
        .toHex()
        .toStdString();
}

int Load() {
    const ksm::ReadGameResult read = ksm::LoadGameFile(ksm::KeptGameName);
    std::cout << (read.Game ? Fingerprint(*read.Game) : read.Problem.toStdString()) << std::endl;
    return read.Game ? 0 : 1;
}

[[noreturn]] void Play(unsigned seed) {
    ksm::KeptGame kept(ksm::GameOfTwentyPlanets());
    ksm::GameWindow game(ksm::GameOfTwentyPlanets(), &kept);
    QObject::connect(&game.window, &ksm::Korvane::Changed,
                     [&] { std::cout << Fingerprint(game.state) << std::endl; });
    ksm::RandomPlay play(game, seed);
    for (;;) {
        play.Step();
    }
}

} // namespace

int main(int argc, char* argv[]) {
    QApplication application(argc, argv);
    ksm::ApplyLook();
    const std::string_view task = argc > 1 ? argv[1] : "1";
    if (task == "--load") {
        return Load();
    }
    Play(static_cast<unsigned>(std::atoi(task.data())));
}
