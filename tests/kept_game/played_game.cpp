// Plays at random until it is killed: begins a new game or loads one that is kept in the current
// folder, sets up, starts, plays. Prints which game it is and how it stands after each change.
//
//   ksm_played_game SEED
//
// Without a seed it prints the games that are kept instead, the running one first.

#include "controls/look.h"
#include "saves/game_file.h"
#include "saves/kept_files.h"
#include "saves/kept_game.h"
#include "tests/random_play.h"

#include <QCryptographicHash>

#include <iostream>

namespace {

/// When it was started, and a short text that is the same for the same game and notes.
void Print(ksm::GameState state) {
    std::cout << state.Game.StartTime << ' ';
    state.View = {};
    state.Game.StartTime = state.Game.Started() ? 1 : 0;
    const auto hash = QCryptographicHash::hash(*ksm::WriteGame(state), QCryptographicHash::Sha1);
    std::cout << hash.toHex().toStdString() << std::endl;
}

} // namespace

int main(int argc, char* argv[]) {
    QApplication application(argc, argv);
    ksm::ApplyLook();
    if (argc < 2) {
        for (const char* name : ksm::KeptGameNames) {
            if (const auto game = ksm::LoadGameFile(name)) {
                Print(*game);
            }
        }
        return 0;
    }
    const ksm::GameState start = ksm::GameOfTwentyPlanets();
    ksm::KeptGame kept(start);
    ksm::GameWindow game(start, &kept);
    QObject::connect(&game.window, &ksm::Korvane::Changed, [&] { Print(game.state); });
    const unsigned seed = static_cast<unsigned>(std::atoi(argv[1]));
    std::mt19937 random(seed);
    ksm::RandomPlay play(game, seed);
    for (;;) {
        const char* name = ksm::KeptGameNames.at(random() % ksm::KeptGameNames.size());
        if (random() % 20 == 0 && QFile::exists(name)) {
            game.Load(name);
        } else if (random() % 10 == 0 && !game.state.Game.Started()) {
            game.Start();
        } else {
            play.Step();
        }
    }
}
