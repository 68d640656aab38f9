// The program from its start to its exit status.

#include "app/display_choice.h"

#include <QDir>
#include <QFile>
#include <QLockFile>
#include <QProcess>
#include <QTemporaryDir>

#include <gtest/gtest.h>

namespace ksm {
namespace {

/// The program in a folder of its own, in which it looks for its planet list.
class Start : public testing::Test {
protected:
    Start() {
        std::filesystem::create_hard_link(PROGRAM_WITH_HAND, Path("ksm").toStdString());
        environment.insert("XDG_RUNTIME_DIR", QDir(folder.path()).absolutePath());
    }

    QString Path(const char* name) const { return folder.filePath(QLatin1StringView(name)); }
    void Write(const char* name, const QByteArray& text) const {
        QFile file(Path(name));
        ASSERT_TRUE(file.open(QFile::WriteOnly));
        file.write(text);
    }
    /// What the program's first window says, or what is said instead of a window.
    std::string Said(int status) const {
        QProcess program;
        program.setProcessEnvironment(environment);
        program.start(Path("ksm"), QStringList());
        EXPECT_TRUE(program.waitForFinished());
        EXPECT_EQ(program.exitStatus(), QProcess::NormalExit);
        EXPECT_EQ(program.exitCode(), status);
        const QByteArray said = program.readAllStandardOutput();
        return (said.isEmpty() ? program.readAllStandardError() : said).toStdString();
    }

    QTemporaryDir folder{"start-XXXXXX"};
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
};

TEST_F(Start, ShowsTheMainWindowOnlyOfOneProgramAtATime) {
    Write("Original.pln", "Ith,1,2,\r\n");
    environment.insert("QT_QPA_PLATFORM", "none;offscreen"); // of which Qt warns
    for (const char* left : {"999999999\nksm\n", ""}) { // by a crash, the second one at its start
        Write("ksm.lock", left);
        EXPECT_EQ(Said(0), "Korvane Astrell Manager II");
    }
    QLockFile other(Path("ksm.lock"));
    ASSERT_TRUE(other.lock());
    EXPECT_EQ(Said(1), "KSM is already running!");
}

TEST_F(Start, RefusesAListThatCannotBeUsed) {
    EXPECT_NE(Said(1).find("Original.pln"), std::string::npos);
    Write("Original.pln", "Ith,999,2,\r\n");
    EXPECT_NE(Said(1).find("999"), std::string::npos);
}

TEST_F(Start, SaysNoMoreThanThatThereIsNoDisplay) {
    environment.insert("LC_ALL", "C");
    environment.insert("DISPLAY", ":none");
    environment.insert("WAYLAND_DISPLAY", "none");
    for (const char* platform : {"xcb", "wayland", "none"}) {
        environment.insert("QT_QPA_PLATFORM", platform);
        EXPECT_EQ(Said(1), "ksm: There is no display that the window can be shown on; start the "
                           "program on a desktop.\n");
    }
}

TEST(ChooseDisplay, PrefersX11WhereADesktopOffersBoth) {
    for (const auto& [platform, x11, chosen] :
         {std::tuple{"", "x", "xcb"}, std::tuple{"", "", ""}, std::tuple{"w", "x", "w"}}) {
        for (const auto& [variable, value] :
             {std::pair{"QT_QPA_PLATFORM", platform}, {"DISPLAY", x11}, {"WAYLAND_DISPLAY", "w"}}) {
            *value == '\0' ? qunsetenv(variable) : qputenv(variable, value);
        }
        ChooseDisplay();
        EXPECT_EQ(qgetenv("QT_QPA_PLATFORM"), chosen);
    }
    qputenv("QT_QPA_PLATFORM", "offscreen");
}

} // namespace
} // namespace ksm
