#include "saves/game_file.h"
#include "tests/saves/sample_game.h"

#include <QDir>
#include <QTemporaryDir>

#include <csignal>
#include <gtest/gtest.h>
#include <sys/resource.h>

namespace ksm {
namespace {

class GameFile : public testing::Test {
protected:
    const QTemporaryDir folder;
    const QString path = folder.filePath("a.ksm");
};

TEST_F(GameFile, ComesBackFromDiskUnlessItCannotBeWritten) {
    EXPECT_EQ(SaveGameFile(path, GameState()), "");
    EXPECT_EQ(SaveGameFile(path, SampleGame()), "") << "over an older game";
    GameState large = SampleGame();
    large.NotesText = std::string(LargestGameFile, 'n');
    EXPECT_TRUE(SaveGameFile(path, large).contains("Shorten the notes"));
    EXPECT_NE(SaveGameFile(path + "/b.ksm", SampleGame()), "") << "a file as folder";
    EXPECT_NE(SaveGameFile(folder.path(), SampleGame()), "") << "a folder as file";
    const ReadGameResult loaded = LoadGameFile(path);
    ASSERT_TRUE(loaded.Game) << loaded.Problem.toStdString();
    EXPECT_TRUE(*loaded.Game == SampleGame());
}

// Limits the size of files, which fails halfway just as a full disk does.
TEST_F(GameFile, AFullDiskLeavesTheOldGame) {
    GameState old = SampleGame();
    GameState large = old;
    old.NotesText = "old";
    large.NotesText = std::string(100'000, 'n');
    ASSERT_EQ(SaveGameFile(path, old), "");

    const auto oldHandler = std::signal(SIGXFSZ, SIG_IGN);
    rlimit limit{};
    getrlimit(RLIMIT_FSIZE, &limit);
    const rlimit tight{.rlim_cur = 4096, .rlim_max = limit.rlim_max};
    setrlimit(RLIMIT_FSIZE, &tight);
    const QString buffered = SaveGameFile(path, SampleGame());
    const QString direct = SaveGameFile(path, large);
    setrlimit(RLIMIT_FSIZE, &limit);
    std::signal(SIGXFSZ, oldHandler);

    EXPECT_TRUE(buffered != "" && direct != "");
    EXPECT_EQ(LoadGameFile(path).Game.value().NotesText, "old");
    EXPECT_EQ(QDir(folder.path()).entryList(QDir::Files | QDir::Hidden), QStringList("a.ksm"));
}

TEST_F(GameFile, WhatCannotBeReadSaysWhy) {
    QFile large(path);
    ASSERT_TRUE(large.open(QIODevice::WriteOnly) && large.resize(LargestGameFile + 1));
    EXPECT_TRUE(LoadGameFile(path).Problem.contains("1 MiB"));
    EXPECT_FALSE(LoadGameFile(folder.path()).Problem.isEmpty());
    EXPECT_FALSE(LoadGameFile("/dev/zero").Problem.isEmpty())
        << "neither a file nor ever at an end";
}

} // namespace
} // namespace ksm
