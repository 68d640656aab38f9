#include "planets/read_file.h"
#include "tests/saves/saves_folder.h"
#include "tests/saves/system_fault.h"

#include <QFileInfo>
#include <QSysInfo>

namespace ksm {
namespace {

using GameFile = SavesFolder;

TEST_F(GameFile, ComesBackUnlessItCannotBeWrittenOrRead) {
    EXPECT_TRUE(SaveGameFile("a.ksm", GameState()));
    EXPECT_TRUE(SaveGameFile("a.ksm", SampleGame())) << "over an older game";
    QFile large("large.ksm");
    ASSERT_TRUE(large.open(QIODevice::WriteOnly) && large.resize(LargestFile + 1));
    const std::pair<std::string, std::string> failures[]{
        {SaveGameFile("a.ksm", WithNotes(std::string(LargestFile, 'n'))).Reason(),
         "Shorten the notes."},
        {SaveGameFile(folder.path(), SampleGame()).Reason(), "This is not a file."},
        {SaveGameFile("autosave-4.ksm", SampleGame()).Reason(), "The program itself keeps games"},
        {SaveGameFile(QString(255, 'n'), SampleGame()).Reason(),
         "The name has 255 bytes, but 254 are"},
        {SaveGameFile("no/a.ksm", SampleGame()).Reason(),
         "\"a.ksm\" in the folder \"" + folder.filePath("no").toStdString() + "\": No such file"},
        {LoadGameFile("large.ksm").Reason(), "The file is larger than 1 MiB."},
        {LoadGameFile("/dev/zero").Reason(), "This is not a file."}};
    for (const auto& [problem, reason] : failures) {
        EXPECT_NE(problem.find(reason), std::string::npos) << problem;
    }
    EXPECT_TRUE(*LoadGameFile("a.ksm") == SampleGame());
}

TEST_F(GameFile, EveryNameThatCanBeSavedCanBeSavedAgainAndLoaded) {
    std::filesystem::create_directory("no UTF-8: \xFF");
    std::filesystem::current_path("no UTF-8: \xFF");
    for (const QString& name : {QString(":colon.ksm"), QString(".ksm"), QString(254, 'n')}) {
        EXPECT_TRUE(SaveGameFile(name, SampleGame()));
        EXPECT_TRUE(SaveGameFile(name, WithNotes("twice"))) << name.toStdString();
        EXPECT_EQ(NotesIn(name), "twice");
    }
    std::filesystem::current_path("..");
    std::filesystem::remove_all("no UTF-8: \xFF"); // which Qt cannot
}

TEST_F(GameFile, AnotherGameThatIsReplacedStays) {
    ASSERT_TRUE(SaveGameFile("a.ksm", WithNotes("last week")));
    QFile::setPermissions("a.ksm", QFile::ReadOwner | QFile::WriteOwner);
    ASSERT_TRUE(QFile::link("a.ksm", "link.ksm"));
    const auto freeHandle = [] {
        QFile any("a.ksm");
        return any.open(QIODevice::ReadOnly) ? any.handle() : -1;
    };
    const int before = freeHandle();
    for (const char* name : {"a.ksm", "link.ksm"}) {
        ASSERT_TRUE(SaveGameFile(name, WithNotes("tonight")));
    }
    EXPECT_EQ(freeHandle(), before) << "every file is closed again";
    EXPECT_FALSE(QFileInfo("a.ksm").permission(QFile::ReadOther)) << "who may read it stays";
    EXPECT_TRUE(QFileInfo("link.ksm").isSymLink());
    EXPECT_EQ(NotesIn("a.ksm") + NotesIn("a.ksm~"), "tonightlast week") << "not lost by the second";
    EXPECT_EQ(Files(), QStringList({"a.ksm", "a.ksm~", "link.ksm"}));
}

TEST_F(GameFile, RemovesOnlyWhatDeadProcessesLeft) {
    const QString begin = ".ksm-" + QSysInfo::machineHostName() + '-';
    const QStringList dead{begin + "999999999.tmp", begin + "999999998-old.tmp"};
    for (const QString& name :
         dead + QStringList{begin + "1-old.tmp", begin + "x.tmp", begin + "999999999-1.tmp",
                            ".ksm-elsewhere-999999999.tmp"}) {
        EXPECT_TRUE(QFile(name).open(QIODevice::WriteOnly));
    }
    ASSERT_TRUE(SaveGameFile("a.ksm", SampleGame()));
    EXPECT_FALSE(QFileInfo::exists(dead[0]) || QFileInfo::exists(dead[1]));
    EXPECT_EQ(Files().size(), 5);
}

TEST_F(GameFile, IsSavedOnlyWhenTheSystemSaysSo) {
    // In the order in which the calls come: for the new file, the copy of the old one, the folder.
    // A full disk takes a part of the file.
    for (const auto& [call, calls] :
         {std::pair{"fsync", 3}, {"rename", 2}, {"write", 2}, {"close", 1}}) {
        for (int number = 1; number <= calls; ++number) {
            QFile::remove("a.ksm");
            ASSERT_TRUE(SaveGameFile("a.ksm", WithNotes("old")));
            SetFault({.Call = call, .Number = number});
            const Outcome<> saved = SaveGameFile("a.ksm", WithNotes("new"));
            SetFault({});
            EXPECT_TRUE(saved.Reason().ends_with("Input/output error")) << call << number;
            EXPECT_EQ(NotesIn("a.ksm"), number == 3 ? "new" : "old") << call << number;
            EXPECT_TRUE(Files().filter(".tmp").empty()) << call << number;
        }
    }
}

} // namespace
} // namespace ksm
