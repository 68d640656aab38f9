#include "planets/read_file.h"
#include "saves/kept_files.h"
#include "saves/kept_game.h"
#include "tests/game_window.h"
#include "tests/saves/saves_folder.h"
#include "tests/saves/system_fault.h"

#include <sys/wait.h>

namespace ksm {
namespace {

/// A game of its own for each time of its start; 0 for one that was not started.
GameState GameOf(std::int64_t start, const std::string& notes) {
    GameState game = GameOfTwentyPlanets();
    game.Game.StartTime = start;
    game.NotesText = notes;
    return game;
}

class KeptGames : public SavesFolder {
protected:
    /// Games that were kept under these names, started at these times.
    static void Put(std::initializer_list<std::int64_t> starts) {
        const auto* name = KeptGameNames.begin();
        for (const std::int64_t start : starts) {
            QFile file(*name++);
            ASSERT_TRUE(file.open(QIODevice::WriteOnly));
            file.write(*WriteGame(GameOf(start, "old")));
        }
    }
    /// When the games were started that are kept, from the running one on; "-" where there is none.
    static std::string Starts() {
        std::string starts;
        for (const char* name : KeptGameNames) {
            const Outcome<GameState> game = LoadGameFile(name);
            starts += game ? std::to_string(game->Game.StartTime) : "-";
        }
        return starts;
    }
    static std::string Keep(std::int64_t start) {
        KeptGame kept(GameOf(0, ""));
        kept.Keep(GameOf(start, "new"));
        return kept.LastOutcome().Reason();
    }
};

TEST_F(KeptGames, OfAnotherProgramStaysAndTheMainWindowSaysSo) {
    const GameState start = GameOf(0, "");
    KeptGame kept(start);
    GameWindow game(start, &kept);
    kept.Keep(game.state);
    EXPECT_TRUE(Files().empty()) << "nothing to keep of a game that only was looked at";
    game.Click("Enviro", 2);
    EXPECT_TRUE(*LoadGameFile("autosave.ksm") == game.state);
    game.Activate();
    GameWindow::Undo(); // back to where it began
    EXPECT_TRUE(LoadGameFile("autosave.ksm")->Game.Player(2) == game.state.Game.Player(2));
    Put({1});
    game.Click("Enviro", 2);
    EXPECT_EQ(NotesIn(KeptGameName), "old");
    const MessageBoxes boxes;
    game.Choose("SGame");
    EXPECT_EQ(boxes.Said.mid(1), QStringList({"The running game is not kept in \"autosave.ksm\".",
                                              "Another program keeps its game there."}));
}

// What the names hold before and after another program keeps a game, by the times of their start.
struct Move {
    std::initializer_list<std::int64_t> Before;
    std::int64_t Start;
    const char* After;
};
const Move Moves[]{
    {{}, 0, "0----"},
    {{0, 1}, 0, "01---"},          // a game that was never started pushes out none that was
    {{1}, 1, "1----"},             // a game that goes on replaces itself
    {{4, 3, 2, 1}, 0, "04321"},    // all names are taken
    {{0, 2, 1, 4, 3}, 5, "52-43"}, // what gives way is not among the three started last
    {{5, 4, 3, 2, 1}, 0, "05432"}, // killed before that
    {{5, 4, 3, 2, 1}, 1, "1543-"}, // the running game is not what gives way
    {{3, 3, 2, 2, 1}, 0, "03-21"}, // killed with games twice
};

TEST_F(KeptGames, KeepTheThreeThatWereStartedLast) {
    for (const Move& move : Moves) {
        for (const char* name : KeptGameNames) {
            QFile::remove(name);
        }
        Put(move.Before);
        EXPECT_EQ(Keep(move.Start), "");
        EXPECT_EQ(Starts(), move.After);
        EXPECT_EQ(NotesIn(KeptGameName), "new");
    }
    Put({5, 4, 3, 2});
    KeptGame kept(GameOf(0, ""));
    for (const std::int64_t start : {6, 0, 7}) { // played one after another
        kept.Keep(GameOf(start, "new"));
    }
    EXPECT_EQ(Starts(), "7654-");
    Put({3, 2});
    QFile::remove(KeptGameNames[2]);
    SetFault({.Call = "rename", .Number = 1});
    EXPECT_EQ(Keep(9), "\"autosave-1.ksm\" cannot be renamed to \"autosave-2.ksm\": "
                       "Input/output error");
    EXPECT_EQ(Keep(9), "") << "what failed is tried again";
    SetFault({.Call = "write", .Number = 1});
    EXPECT_EQ(Keep(9), "Input/output error");
    SetFault({});
    kept.Keep(GameOf(9, std::string(LargestFile, 'n')));
    EXPECT_FALSE(kept.LastOutcome());
}

TEST_F(KeptGames, StayOutOfWhatCannotBeRead) {
    for (const char* name : KeptGameNames) {
        QFile file(name);
        ASSERT_TRUE(file.open(QIODevice::WriteOnly) && file.write("later version") > 0);
    }
    EXPECT_EQ(Keep(1).substr(0, 14), "\"autosave.ksm\"");
    EXPECT_EQ(QFileInfo(KeptGameName).size(), 13) << "nothing is replaced";
    Put({1});
    for (const std::size_t place : {1U, 2U}) {
        QFile::remove(KeptGameNames.at(place));
    }
    QDir().mkdir(KeptGameNames[1]);
    EXPECT_EQ(Keep(2).substr(0, 16), "\"autosave-1.ksm\"") << "a folder is in the way";
    EXPECT_EQ(NotesIn(KeptGameName), "old");
}

TEST_F(KeptGames, NoneIsLostWhereverTheProgramIsKilled) {
    for (const std::int64_t start : {1, 6}) {
        bool isKilled = true;
        for (int call = 1; isKilled; ++call) {
            Put({5, 4, 3, 2, 1});
            const pid_t child = fork();
            if (child == 0) {
                SetFault({.Call = "rename or remove", .Number = call, .Kills = true});
                Keep(start);
                _exit(1);
            }
            int status = 0;
            ASSERT_EQ(waitpid(child, &status, 0), child);
            isKilled = WEXITSTATUS(status) == 0;
            // The game that is running, and the three that were started last.
            for (const char* games : {start == 1 ? "1543" : "543", "543"}) {
                const std::string found = Starts();
                for (const char game : std::string_view(games)) {
                    EXPECT_NE(found.find(game), std::string::npos) << found;
                }
                EXPECT_EQ(Keep(0), "") << "of the program that is started then";
            }
        }
    }
    EXPECT_TRUE(Files().filter(".tmp").empty());
}

} // namespace
} // namespace ksm
