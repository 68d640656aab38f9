#include "model/history.h"
#include "planets/read_file.h"
#include "saves/kept_files.h"
#include "saves/kept_game.h"
#include "tests/game_window.h"
#include "tests/saves/saves_folder.h"
#include "tests/saves/system_fault.h"

#include <map>
#include <random>
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
    static void Put(const QString& name, const QByteArray& bytes) {
        QFile file(name);
        ASSERT_TRUE(file.open(QIODevice::WriteOnly) && file.write(bytes) == bytes.size());
    }
    /// Games that were kept under these names, started at these times.
    static void Put(std::initializer_list<std::int64_t> starts) {
        const auto* name = KeptGameNames.begin();
        for (const std::int64_t start : starts) {
            Put(*name++, *WriteGame(GameOf(start, "old")));
        }
    }
    /// When the games were started that are kept, from the running one on; "-" where there is none,
    /// "?" where there is something else.
    static std::string Starts() {
        std::string starts;
        for (const char* name : KeptGameNames) {
            const Outcome<GameState> game = LoadGameFile(name);
            const bool isThere = QFileInfo(name).exists() || QFileInfo(name).isSymLink();
            starts += !isThere ? "-" : game ? std::to_string(game->Game.StartTime) : "?";
        }
        return starts;
    }
    static std::string Keep(std::int64_t start, const std::string& notes = "new") {
        KeptGame kept(GameOf(0, ""));
        kept.Keep(GameOf(start, notes));
        return kept.LastOutcome().Reason();
    }
};

TEST_F(KeptGames, AreWrittenWhenTheGameChanged) {
    const GameState start = GameOf(0, "");
    GameState game = start;
    KeptGame kept(game);
    game.View.EditedPlayer = 3;
    kept.Keep(game);
    EXPECT_TRUE(Files().empty()) << "nothing to keep of a game that only was looked at";
    game.Game.Laws.FreeTrade = true;
    game.NotesText = "late";
    kept.Keep(game);
    EXPECT_EQ(Files(), QStringList{KeptGameName});
    EXPECT_EQ(WriteGame(*LoadGameFile(KeptGameName))->size(), WriteGame(game)->size());
    QFile::remove(KeptGameName);
    game.NotesText = "later";
    kept.Keep(game);
    EXPECT_EQ(NotesIn(KeptGameName), "later") << "written again, since it is gone";
    kept.Keep(start);
    EXPECT_EQ(NotesIn(KeptGameName), "") << "as it was at first, when that comes back";
}

TEST_F(KeptGames, FollowTheMainWindowWhichSaysWhyOneCannotBeKept) {
    KeptGame kept(GameOfTwentyPlanets());
    GameWindow game(GameOfTwentyPlanets(), &kept);
    game.Click("Enviro", 2);
    EXPECT_TRUE(*LoadGameFile(KeptGameName) == game.state);
    Put(KeptGameName, *WriteGame(game.state)); // as another program writes
    game.Click("Enviro", 2);
    const MessageBoxes boxes;
    game.Choose("SGame");
    EXPECT_EQ(boxes.Said.value(1), "The running game is not kept in \"autosave.ksm\".");
    EXPECT_EQ(boxes.Said.value(2), "Another program keeps its game there.");
}

// What the names hold before and after another program keeps a game, by the times of their start.
struct Move {
    std::initializer_list<std::int64_t> Before;
    std::int64_t Start;
    const char* After;
};
const Move Moves[]{
    {{}, 0, "0----"},
    {{1}, 0, "01---"},    // a new program moves the evening before
    {{0, 1}, 0, "01---"}, // a game that was never started pushes out none that was
    {{2, 1}, 2, "21---"}, // a game that goes on replaces itself
    {{2, 1}, 1, "12---"}, // also when another one was played since
    {{1, 3, 2}, 2, "213--"},
    {{4, 3, 2, 1}, 0, "04321"},    // all names are taken
    {{0, 4, 3, 2, 1}, 5, "5432-"}, // one name stays free
    {{0, 2, 1, 4, 3}, 5, "52-43"}, // what gives way is not among the three started last
    {{5, 4, 3, 2, 1}, 0, "05432"}, // killed before that
    {{5, 4, 3, 2, 1}, 1, "1543-"}, // the running game is not what gives way
    {{3, 3, 2, 2, 1}, 0, "03-21"}, // killed with games twice
    {{2, 4, 3, 1}, 3, "324-1"},
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
}

TEST_F(KeptGames, WhatStandsInTheWayIsNamedAndStays) {
    Put({2, 1});
    Put("autosave-1.ksm", ""); // a power cut left it empty
    EXPECT_EQ(Keep(0), "");
    EXPECT_EQ(Starts(), "02?--") << "moved like a game";
    Put({4, 3, 2});
    Put("autosave-3.ksm", "");
    Put("autosave-4.ksm", "mine");
    EXPECT_NE(Keep(0).find("\"autosave-3.ksm\" in the folder"), std::string::npos);
    EXPECT_EQ(Starts(), "432??");
    QFile::remove("autosave-3.ksm");
    QFile::remove("autosave-2.ksm");
    QDir().mkdir("autosave-2.ksm");
    EXPECT_NE(Keep(0).find("\"autosave-2.ksm\" in the folder"), std::string::npos);
    EXPECT_EQ(Starts(), "43?-?");
    QDir().rmdir("autosave-2.ksm");
    SetFault({.Call = "rename", .Number = 1});
    EXPECT_EQ(Keep(0), "\"autosave-1.ksm\" cannot be renamed to \"autosave-2.ksm\": "
                       "Input/output error");
    EXPECT_EQ(Starts(), "43--?");
    EXPECT_NE(Keep(0, std::string(LargestFile, 'n')).find("Shorten the notes."), std::string::npos);
    EXPECT_EQ(Keep(0), "");
    EXPECT_EQ(Starts(), "043-?");
}

TEST_F(KeptGames, AreNotWrittenOverThoseOfAnotherProgram) {
    KeptGame one(GameOf(0, ""));
    KeptGame other(GameOf(0, ""));
    one.Keep(GameOf(1, "one"));
    other.Keep(GameOf(2, "other"));
    one.Keep(GameOf(1, "one again"));
    EXPECT_EQ(one.LastOutcome().Reason(), "Another program keeps its game there.");
    EXPECT_EQ(NotesIn(KeptGameName) + NotesIn("autosave-1.ksm"), "otherone");
    other.Keep(GameOf(2, "other again"));
    EXPECT_EQ(NotesIn(KeptGameName), "other again");
    QFile::remove(KeptGameName);
    one.Keep(GameOf(1, "one again"));
    EXPECT_TRUE(one.LastOutcome());
    EXPECT_EQ(NotesIn(KeptGameName), "one again") << "what failed is tried again";
}

TEST_F(KeptGames, LinksAreNotFollowed) {
    Put("mine.ksm", *WriteGame(GameOf(1, "mine")));
    for (const char* target : {"mine.ksm", "lost.ksm"}) {
        QFile::remove(KeptGameName);
        ASSERT_TRUE(QFile::link(target, KeptGameName));
        EXPECT_EQ(Keep(0), "");
        EXPECT_EQ(NotesIn("mine.ksm") + NotesIn(KeptGameName), "minenew");
        EXPECT_FALSE(QFileInfo(KeptGameName).isSymLink());
        EXPECT_TRUE(QFileInfo("autosave-1.ksm").isSymLink());
    }
}

TEST_F(KeptGames, NoneIsLostWhereverTheProgramIsKilled) {
    bool isKilled = true;
    for (int call = 1; isKilled; ++call) {
        Put({5, 4, 3, 2, 1});
        const pid_t child = fork();
        if (child == 0) {
            SetFault({.Call = "rename or remove", .Number = call, .Kills = true});
            Keep(1);
            _exit(1);
        }
        int status = 0;
        ASSERT_EQ(waitpid(child, &status, 0), child);
        isKilled = WEXITSTATUS(status) == 0;
        const std::string left = Starts();
        EXPECT_EQ(Keep(0), "") << "of the program that is started then";
        const std::string later = Starts();
        for (const char game : {'5', '4', '3'}) {
            EXPECT_NE(left.find(game), std::string::npos) << left;
            EXPECT_NE(later.find(game), std::string::npos) << later;
        }
        EXPECT_NE(left.find('1'), std::string::npos) << "it was running: " << left;
    }
    EXPECT_TRUE(Files().filter(".tmp").empty());
}

/// Programs that play one after another in one folder, and what was played last of each game.
class Evenings {
public:
    explicit Evenings(unsigned seed) : random(seed) { Start(); }

    void DoSomething() {
        switch (Pick(0, 9)) {
        case 0:
            return Start(); // after Ctrl+X, or killed
        case 1:
            return PressStart();
        case 2:
        case 3:
            return Load();
        case 4:
        case 5:
            return history->CanUndo() ? history->Undo(state), Keep() : void();
        case 6:
            return history->CanRedo() ? history->Redo(state), Keep() : void();
        default:
            Change();
        }
    }
    void Check() const {
        std::map<std::int64_t, std::string> found;
        int before = moment + 1;
        for (const char* name : KeptGameNames) {
            if (!QFileInfo::exists(name)) {
                continue;
            }
            const Outcome<GameState> game = LoadGameFile(name);
            ASSERT_TRUE(game) << game.Reason();
            const std::int64_t start = game->Game.StartTime;
            found.emplace(start, game->Game.Player(1).Name);
            if (start != 0) {
                EXPECT_LT(played.at(start).Moment, before) << name << " holds a game played later";
                before = played.at(start).Moment;
            }
        }
        auto game = played.rbegin();
        for (int count = 0; count < 3 && game != played.rend(); ++count, ++game) {
            EXPECT_EQ(found[game->first], game->second.Name) << "of " << game->first;
        }
        EXPECT_TRUE(kept->LastOutcome());
    }

private:
    struct Played {
        std::string Name; ///< of the first player, another one after each change
        int Moment = 0;
    };

    int Pick(int least, int most) {
        return std::uniform_int_distribution<int>(least, most)(random);
    }
    void Start() {
        state = {};
        SetPlanets(state.Game, std::vector<PlanetRecord>(1));
        history.emplace(state.Game);
        kept.emplace(state);
    }
    void Keep() {
        kept->Keep(state);
        if (state.Game.Started()) {
            played[state.Game.StartTime] = {state.Game.Player(1).Name, ++moment};
        }
    }
    void Change() {
        state.Game.Player(1).Named = true;
        state.Game.Player(1).Name = std::to_string(++changes);
        history->Record(state.Game);
        Keep();
    }
    void PressStart() {
        if (!state.Game.Started()) {
            state.Game.StartTime = ++starts;
            history->Restart(state.Game);
            Keep();
        }
    }
    void Load() {
        const char* name = KeptGameNames.at(static_cast<std::size_t>(Pick(0, 4)));
        if (const Outcome<GameState> loaded = LoadGameFile(name)) {
            state = *loaded;
            history->RecordLoad(state, "");
            Keep();
        }
    }

    std::mt19937 random;
    GameState state;
    std::optional<History> history;
    std::optional<KeptGame> kept;
    std::map<std::int64_t, Played> played; ///< by start
    std::int64_t starts = 0;
    int moment = 0;
    int changes = 0;
};

TEST_F(KeptGames, OutliveWhateverIsDone) {
    constexpr unsigned Seeds = 3;
    for (unsigned seed = 0; seed < Seeds && !HasFailure(); ++seed) {
        for (const char* name : KeptGameNames) {
            QFile::remove(name);
        }
        Evenings evenings(seed);
        for (int step = 0; step < 40 && !HasFailure(); ++step) {
            evenings.DoSomething();
            evenings.Check();
        }
        EXPECT_FALSE(HasFailure()) << "seed " << seed;
    }
}

} // namespace
} // namespace ksm
