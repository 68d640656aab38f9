// The program from its start to its exit status.

#include "app/display_choice.h"
#include "planets/planet_list_file.h"

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
        environment.insert("XDG_RUNTIME_DIR", folder.path());
    }

    QString Path(const char* name) const { return folder.filePath(QLatin1StringView(name)); }
    void WriteList(const QByteArray& text) const {
        QFile list(folder.filePath(QLatin1StringView(PlanetListName)));
        ASSERT_TRUE(list.open(QFile::WriteOnly));
        list.write(text);
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

TEST_F(Start, ShowsTheMainWindow) {
    WriteList("Ith,1,2,\r\n");
    EXPECT_EQ(Said(0), "Korvane Astrell Manager II");
}

TEST_F(Start, RefusesAListThatCannotBeUsed) {
    EXPECT_NE(Said(1).find("Original.pln"), std::string::npos);
    WriteList("Ith,999,2,\r\n");
    EXPECT_NE(Said(1).find("999"), std::string::npos);
}

TEST_F(Start, RunsOnce) {
    WriteList("");
    QLockFile other(Path("ksm.lock"));
    ASSERT_TRUE(other.lock());
    EXPECT_EQ(Said(1), "KSM is already running!");
}

TEST_F(Start, SaysThatThereIsNoDisplay) {
    environment.insert("QT_QPA_PLATFORM", "xcb");
    environment.insert("DISPLAY", ":none");
    EXPECT_EQ(Said(1), "ksm: There is no display that the window can be shown on; start the "
                       "program on a desktop.\n");
}

TEST(ChooseDisplay, PrefersX11WhereADesktopOffersBoth) {
    struct Row {
        QByteArray Chosen, Wayland, X11, Platform;
    };
    for (const Row& row : std::vector<Row>{{"", "wayland-0", ":0", "xcb"},
                                           {"", "wayland-0", "", ""},
                                           {"", "", ":0", ""},
                                           {"wayland", "wayland-0", ":0", "wayland"}}) {
        const auto set = [](const char* name, const QByteArray& value) {
            value.isEmpty() ? qunsetenv(name) : qputenv(name, value);
        };
        set("QT_QPA_PLATFORM", row.Chosen);
        set("WAYLAND_DISPLAY", row.Wayland);
        set("DISPLAY", row.X11);
        ChooseDisplay();
        EXPECT_EQ(qgetenv("QT_QPA_PLATFORM"), row.Platform)
            << "with " << row.Chosen.toStdString() << row.Wayland.toStdString()
            << row.X11.toStdString();
    }
    qputenv("QT_QPA_PLATFORM", "offscreen");
}

} // namespace
} // namespace ksm
