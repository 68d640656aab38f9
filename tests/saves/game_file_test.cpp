#include "tests/saves/saves_folder.h"

#include <QFileInfo>
#include <QSysInfo>

#include <csignal>
#include <sys/resource.h>

namespace ksm {
namespace {

using GameFile = SavesFolder;

TEST_F(GameFile, ComesBackUnlessItCannotBeWrittenOrRead) {
    EXPECT_EQ(SaveGameFile("a.ksm", GameState()), "");
    EXPECT_EQ(SaveGameFile("a.ksm", SampleGame()), "") << "over an older game";
    QFile large("large.ksm");
    ASSERT_TRUE(large.open(QIODevice::WriteOnly) && large.resize(LargestGameFile + 1));
    const std::pair<QString, QString> failures[]{
        {SaveGameFile("a.ksm", WithNotes(std::string(LargestGameFile, 'n'))), "Shorten the notes."},
        {SaveGameFile("a.ksm/b.ksm", SampleGame()), "\"b.ksm\" in the folder"},
        {SaveGameFile(folder.path(), SampleGame()), "This is not a file."},
        {SaveGameFile(QString(255, 'n'), SampleGame()), "The name has 255 bytes, but 254 are"},
        {SaveGameFile("no/a.ksm", SampleGame()),
         "\"a.ksm\" in the folder \"" + folder.filePath("no") + "\": No such file"},
        {LoadGameFile("large.ksm").Problem, "The file is larger than 1 MiB."},
        {LoadGameFile("no.ksm").Problem, "\"no.ksm\" in the folder"},
        {LoadGameFile(folder.path()).Problem, "This is not a file."},
        {LoadGameFile("/dev/zero").Problem, "This is not a file."}};
    for (const auto& [problem, reason] : failures) {
        EXPECT_TRUE(problem.contains(reason)) << problem.toStdString();
    }
    EXPECT_TRUE(LoadGameFile("a.ksm").Game == SampleGame());
}

TEST_F(GameFile, EveryNameThatCanBeSavedCanBeSavedAgainAndLoaded) {
    for (const QString& name : {QString(":colon.ksm"), QString(".ksm"), QString(254, 'n')}) {
        for (const char* notes : {"once", "twice"}) {
            EXPECT_EQ(SaveGameFile(name, WithNotes(notes)), "") << name.toStdString();
            EXPECT_EQ(NotesIn(name), notes);
        }
        EXPECT_TRUE(QFileInfo::exists("./" + name));
    }
}

TEST_F(GameFile, AnotherGameThatIsReplacedStays) {
    for (const char* notes : {"last week", "tonight", "tonight"}) {
        ASSERT_EQ(SaveGameFile("a.ksm", WithNotes(notes)), "");
    }
    EXPECT_EQ(NotesIn("a.ksm") + NotesIn("a.ksm~"), "tonightlast week") << "not lost by the second";
    ASSERT_EQ(SaveGameFile("a.ksm", WithNotes("l a t e")), ""); // as long as the game before
    EXPECT_EQ(NotesIn("a.ksm~"), "tonight");
    EXPECT_EQ(Files(), QStringList({"a.ksm", "a.ksm~"}));
}

TEST_F(GameFile, GoesWhereALinkLeadsAndKeepsWhoMayReadIt) {
    ASSERT_EQ(SaveGameFile("real.ksm", SampleGame()), "");
    QFile::setPermissions("real.ksm", QFile::ReadOwner | QFile::WriteOwner);
    ASSERT_TRUE(QFile::link("real.ksm", "a.ksm"));
    EXPECT_EQ(SaveGameFile("a.ksm", WithNotes("new")), "");
    EXPECT_TRUE(QFileInfo("a.ksm").isSymLink());
    EXPECT_EQ(NotesIn("real.ksm"), "new");
    EXPECT_FALSE(QFileInfo("a.ksm").permission(QFile::ReadOther));
}

TEST_F(GameFile, RemovesOnlyWhatDeadProcessesLeft) {
    const QString begin = ".ksm-" + QSysInfo::machineHostName() + '-';
    const QStringList dead{begin + "999999999.tmp", begin + "999999998-old.tmp"};
    for (const QString& name :
         dead + QStringList{begin + "1-old.tmp", begin + "x.tmp", ".ksm-elsewhere-999999999.tmp"}) {
        EXPECT_TRUE(QFile(name).open(QIODevice::WriteOnly));
    }
    ASSERT_EQ(SaveGameFile("a.ksm", SampleGame()), "");
    EXPECT_FALSE(QFileInfo::exists(dead[0]) || QFileInfo::exists(dead[1]));
    EXPECT_EQ(Files().size(), 4);
}

// Limits the size of files, which fails halfway just as a full disk does.
TEST_F(GameFile, AFullDiskLeavesTheOldGame) {
    ASSERT_EQ(SaveGameFile("a.ksm", WithNotes("old")), "");
    const auto oldHandler = std::signal(SIGXFSZ, SIG_IGN);
    rlimit limit{};
    getrlimit(RLIMIT_FSIZE, &limit);
    const rlimit tight{.rlim_cur = 4096, .rlim_max = limit.rlim_max};
    setrlimit(RLIMIT_FSIZE, &tight);
    const QString buffered = SaveGameFile("a.ksm", SampleGame());
    const QString direct = SaveGameFile("a.ksm", WithNotes(std::string(100'000, 'n')));
    setrlimit(RLIMIT_FSIZE, &limit);
    std::signal(SIGXFSZ, oldHandler);

    EXPECT_TRUE(buffered != "" && direct != "");
    EXPECT_EQ(NotesIn("a.ksm"), "old");
    EXPECT_EQ(Files(), QStringList("a.ksm"));
}

} // namespace
} // namespace ksm
