#include "planets/read_file.h"
#include "saves/kept_game.h"
#include "tests/game_window.h"
#include "tests/saves/saves_folder.h"

#include <QFileInfo>

namespace ksm {
namespace {

using KeptGames = SavesFolder;

TEST_F(KeptGames, AreWrittenWhenTheGameChanged) {
    GameState game = SampleGame();
    KeptGame kept(game);
    kept.Keep(game);
    game.View.BoardPlayer = AllPlanets;
    kept.Keep(game);
    EXPECT_TRUE(Files().empty()) << "nothing to keep of a game that only was looked at";
    game.Game.Laws.FreeTrade = !game.Game.Laws.FreeTrade;
    kept.Keep(game);
    EXPECT_EQ(Files(), QStringList{KeptGameName});
    EXPECT_EQ(LoadGameFile(KeptGameName)->Game.Laws, game.Game.Laws);
    game.NotesText = "late";
    kept.Keep(game);
    EXPECT_EQ(NotesIn(KeptGameName), "late");
}

TEST_F(KeptGames, FollowTheMainWindowWhichSaysWhyOneCannotBeKept) {
    KeptGame kept(GameOfTwentyPlanets());
    GameWindow game(GameOfTwentyPlanets(), &kept);
    game.Click("Enviro", 2);
    EXPECT_TRUE(*LoadGameFile(KeptGameName) == game.state);
    QFile::remove(KeptGameName);
    QDir().mkdir(KeptGameName);
    game.Click("Enviro", 2);
    const MessageBoxes boxes;
    game.Choose("SGame");
    EXPECT_EQ(boxes.Said.value(1), "The running game is not kept in \"autosave.ksm\".");
}

TEST_F(KeptGames, TheEveningBeforeGetsAnotherName) {
    ASSERT_TRUE(SaveGameFile(KeptGameName, WithNotes("last week")));
    KeptGame kept(SampleGame());
    for (const char* notes : {"tonight", "later tonight"}) {
        kept.Keep(WithNotes(notes));
        EXPECT_EQ(NotesIn(KeptGameName), notes);
        EXPECT_EQ(NotesIn(EarlierGameName), "last week");
    }
}

TEST_F(KeptGames, LinksAreNotFollowed) {
    ASSERT_TRUE(SaveGameFile("mine.ksm", WithNotes("mine")));
    for (const char* target : {"mine.ksm", "lost.ksm"}) {
        QFile::remove(KeptGameName);
        ASSERT_TRUE(QFile::link(target, KeptGameName));
        KeptGame(SampleGame()).Keep(WithNotes("tonight"));
        EXPECT_EQ(NotesIn("mine.ksm"), "mine");
        EXPECT_EQ(NotesIn(KeptGameName), "tonight");
        EXPECT_FALSE(QFileInfo(KeptGameName).isSymLink());
        EXPECT_TRUE(QFileInfo(EarlierGameName).isSymLink());
    }
}

TEST_F(KeptGames, AFailureIsRememberedAndTriedAgain) {
    ASSERT_TRUE(QDir().mkdir(KeptGameName));
    KeptGame kept(SampleGame());
    kept.Keep(WithNotes("one"));
    EXPECT_EQ(kept.LastOutcome().Reason(), "This is not a file.");
    ASSERT_TRUE(QDir().rmdir(KeptGameName));
    kept.Keep(WithNotes("one"));
    EXPECT_EQ(kept.LastOutcome().Reason(), "");
    EXPECT_EQ(NotesIn(KeptGameName), "one");
    kept.Keep(WithNotes(std::string(LargestFile, 'n')));
    EXPECT_TRUE(kept.LastOutcome().Reason().ends_with("Shorten the notes."));
    EXPECT_EQ(NotesIn(KeptGameName), "one");
}

} // namespace
} // namespace ksm
