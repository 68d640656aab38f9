#include "saves/game_file.h"
#include "tests/saves/sample_game.h"

#include <QDir>
#include <QFileInfo>
#include <QSysInfo>
#include <QTemporaryDir>

#include <csignal>
#include <gtest/gtest.h>
#include <sys/resource.h>

namespace ksm {
namespace {

class GameFile : public testing::Test {
protected:
    static GameState WithNotes(const std::string& notes) {
        GameState game = SampleGame();
        game.NotesText = notes;
        return game;
    }
    static std::string NotesIn(const QString& name) {
        const ReadGameResult read = LoadGameFile(name);
        return read.Game ? read.Game->NotesText : read.Problem.toStdString();
    }
    QStringList Files() const {
        return QDir(folder.path()).entryList(QDir::Files | QDir::Hidden, QDir::Name);
    }

    const QTemporaryDir folder;
    const QString path = folder.filePath("a.ksm");
};

TEST_F(GameFile, ComesBackFromDiskUnlessItCannotBeWritten) {
    EXPECT_EQ(SaveGameFile(path, GameState()), "");
    EXPECT_EQ(SaveGameFile(path, SampleGame()), "") << "over an older game";
    const std::tuple<QString, GameState, const char*> failures[]{
        {path, WithNotes(std::string(LargestGameFile, 'n')), "Shorten the notes"},
        {path + "/b.ksm", SampleGame(), ""}, // a file as folder
        {folder.path(), SampleGame(), "This is not a file"},
        {folder.filePath(QString(255, 'n')), SampleGame(), "The name has 255 bytes, but 254"}};
    for (const auto& [name, game, reason] : failures) {
        const QString problem = SaveGameFile(name, game);
        EXPECT_TRUE(problem.contains(reason) && !problem.isEmpty()) << problem.toStdString();
    }
    EXPECT_TRUE(SaveGameFile(folder.filePath("no/a.ksm"), SampleGame())
                    .startsWith("\"a.ksm\" in the folder \"" + folder.filePath("no") + "\": "));
    EXPECT_TRUE(*LoadGameFile(path).Game == SampleGame());
}

TEST_F(GameFile, EveryNameThatCanBeSavedCanBeSavedAgainAndLoaded) {
    const QString oldFolder = QDir::currentPath();
    QDir::setCurrent(folder.path());
    for (const QString& name : {QString(":colon.ksm"), QString(".ksm"), QString(254, 'n')}) {
        for (const char* notes : {"once", "twice"}) {
            EXPECT_EQ(SaveGameFile(name, WithNotes(notes)), "") << name.toStdString();
            EXPECT_EQ(NotesIn(name), notes);
        }
        EXPECT_TRUE(QFileInfo::exists("./" + name));
    }
    QDir::setCurrent(oldFolder);
}

TEST_F(GameFile, AnotherGameThatIsReplacedStays) {
    for (const char* notes : {"last week", "tonight", "tonight"}) {
        ASSERT_EQ(SaveGameFile(path, WithNotes(notes)), "");
    }
    EXPECT_EQ(NotesIn(path), "tonight");
    EXPECT_EQ(NotesIn(path + '~'), "last week") << "saving twice does not lose it";
    ASSERT_EQ(SaveGameFile(path, WithNotes("later")), "");
    EXPECT_EQ(NotesIn(path + '~'), "tonight");
    EXPECT_EQ(Files(), QStringList({"a.ksm", "a.ksm~"}));
}

TEST_F(GameFile, GoesWhereALinkLeadsAndKeepsWhoMayReadIt) {
    ASSERT_EQ(SaveGameFile(folder.filePath("real.ksm"), SampleGame()), "");
    QFile::setPermissions(folder.filePath("real.ksm"), QFile::ReadOwner | QFile::WriteOwner);
    ASSERT_TRUE(QFile::link("real.ksm", path));
    EXPECT_EQ(SaveGameFile(path, WithNotes("new")), "");
    EXPECT_TRUE(QFileInfo(path).isSymLink());
    EXPECT_EQ(NotesIn(folder.filePath("real.ksm")), "new");
    EXPECT_FALSE(QFileInfo(path).permission(QFile::ReadOther));
}

TEST_F(GameFile, RemovesOnlyWhatDeadProcessesLeft) {
    const QString begin = folder.filePath(".ksm-" + QSysInfo::machineHostName() + '-');
    const QString dead = begin + "999999999.tmp";
    const QString alive = begin + "1-old.tmp";
    for (const QString& name : {dead, alive, folder.filePath(".ksm-elsewhere-999999999.tmp")}) {
        QFile(name).open(QIODevice::WriteOnly);
    }
    ASSERT_EQ(SaveGameFile(path, SampleGame()), "");
    EXPECT_FALSE(QFileInfo::exists(dead));
    EXPECT_EQ(Files().size(), 3);
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
