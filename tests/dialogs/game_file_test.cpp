#include "app/races.h"
#include "dialogs/game_file.h"
#include "economy/tech_boxes.h"
#include "economy/value_update.h"
#include "planets/board_listing.h"
#include "planets/planet_transfer.h"
#include "sample_game.h"
#include "trade/trade_agreements.h"
#include "trade/trade_laws.h"

#include <QDir>
#include <QTemporaryDir>

#include <csignal>
#include <functional>
#include <gtest/gtest.h>
#include <random>
#include <sys/resource.h>

namespace ksm {
namespace {

// Derived figures are not part of a saved game.
GameState WithoutFigures(GameState game) {
    game.Player(NeutralOwner).PlanetCount = 0;
    return game;
}

TEST(GameText, EveryInputComesBack) {
    GameState full = SampleGame();
    full.Planets.fill({.Name = "P", .Resources = 255, .Influence = 255, .Owner = 10});
    full.NumPlanets = MaxPlanets;
    for (PlayerRecord& player : full.Players)
        player.PlanetList.fill(100);
    full.Players[11] = full.Players[12] = {};
    for (const GameState& game : {SampleGame(), full}) {
        const QByteArray saved = WriteGame(game);
        const ReadGameResult loaded = ReadGame(saved);
        ASSERT_TRUE(loaded.Game) << loaded.Problem.toStdString();
        EXPECT_TRUE(*loaded.Game == WithoutFigures(game));
        EXPECT_EQ(WriteGame(*loaded.Game), saved);
    }
    full.Player(3).Name = "no text: half \xED\xA0\xBD of a pair, cut \xF0\x9F";
    EXPECT_TRUE(ReadGame(WriteGame(full)).Game);
}

// One step of play, chosen at random.
void Play(GameState& game, std::mt19937& random) {
    const auto pick = [&](int least, int most) {
        return std::uniform_int_distribution(least, most)(random);
    };
    const int player = pick(1, MaxPlayers);
    PlayerControls& controls = game.Controls[player];
    const std::function<void()> steps[]{
        [&] { ChooseRace(game, player, static_cast<Race>(pick(0, RaceCount - 1))); },
        [&] { controls.Enviro = !controls.Enviro, UpdateTechBoxes(controls); },
        [&] { controls.PellamTools = controls.PellamTools != controls.PellamToolsEnabled; },
        [&] { controls.Micro = controls.Micro != controls.MicroEnabled; },
        [&] { AddTAbutton_Click(game); },
        [&] { RemoveTAButton_Click(game); },
        [&] { Tres_Click(game); },
        [&] { pick(0, 9) == 0 ? TStop_Click(game) : TradeOutcome(); },
        [&] {
            game.BoardPlayer = pick(0, 1) == 0 ? AllPlanets : player;
            game.BoardPosition = std::min(game.BoardPosition + 1, BoardMaximum(game));
        },
        [&] { player != game.BoardPlayer&& TransferPlanet(game, pick(0, 21), player); },
        [&] { TradePlayer_Click(game, player); },
        [&] { TradePlayer_Click(game, player); },
    };
    steps[pick(0, 11)]();
}

TEST(GameText, WhateverPlayLeadsToComesBackWithEveryFigure) {
    std::mt19937 random(22);
    GameState game = SampleGame();
    for (int step = 0; step < 6'000; ++step) {
        Play(game, random);
        UpdateValues(game);
        if (step % 10 != 0)
            continue;
        ReadGameResult loaded = ReadGame(WriteGame(game));
        ASSERT_TRUE(loaded.Game) << "step " << step << ": " << loaded.Problem.toStdString();
        UpdateValues(*loaded.Game);
        ASSERT_TRUE(*loaded.Game == game) << "step " << step;
    }
}

// What stands in a whole file at least once, what damage makes of it, and what is then reported.
const std::array<const char*, 3> Damages[]{
    // Kinds of files.
    {"Format", "Formal", "not a saved game of this program"},
    {"\"Version\": 1", "\"Version\": 2, \"New\": {}", "later version"},
    {"\"Version\": 1\n}", "\"Version\": 1\n", "or it is damaged"},
    {"line 1", "line \xFF", "or it is damaged"},
    // Members.
    {"\"Started\": true", "\"Starter\": true", "Game.Started is missing"},
    {"\"Started\": true", "\"Started\": true, \"Zeal\": 1", "Game.Zeal is unknown"},
    {"\"Owner\":10", "\"Owner\":10,\"Ow\\u006eer\":10", "occurs twice"},
    // Types and ranges.
    {"\"Started\": true", "\"Started\": 1", "Game.Started is neither true nor false"},
    {"\"NumPlayers\": 4", "\"NumPlayers\": 11", "NumPlayers is not a whole number from 2 to 10"},
    {"\"NumPlayers\": 4", "\"NumPlayers\": 3.5", "Game.NumPlayers is not"},
    {"\"Influence\":4", "\"Influence\":-1", "Game.Planets[21].Influence is not"},
    {"\"Specialty\":\"red\"", "\"Specialty\":\"Red\"", "Specialty is none of the words"},
    {"#0102FE", "#0102FG", "Players[2].NameColours.Back is not a colour"},
    {"\"BoardPosition\": 10", "\"BoardPosition\": 11", "Game.BoardPosition is not"},
    {"\"BoardPlayer\": 3", "\"BoardPlayer\": 11", "Game.BoardPlayer is no owner"},
    {"\"TradeMode\": \"add partner\"", "\"TradeMode\": 2", "Game.TradeMode is not a text"},
    // References and lengths.
    {"\"Owner\":10", "\"Owner\":11", "Planets[7].Owner is not a whole number from 0 to 10"},
    {"[0,7,0]", "[0,22,0]", "Players[2].PlanetList[1] is not a whole number from 0 to 21"},
    {"\"Planets\": [", "\"Planets\": [7,", "Game.Planets[0] is not an object"},
    {"\"Players\": [", "\"Players\": [{},", "Game.Players is not a list of 10 to 10"},
    {"[3,5]", "[3,11]", "TradeAgreements[0] is not a whole number from 1 to 10"},
    // Agreement with itself.
    {"[3,5]", "[5,5]", "TradeAgreements[0] is an agreement that cannot be made"},
    {"[3,5]", "[3,5],[5,3]", "TradeAgreements[1] is an agreement that cannot be made"},
    {"\"TradeFirst\": 3", "\"TradeFirst\": 0", "Game.TradeFirst names no player"},
    {"\"Named\": true", "\"Named\": false", "Players[2].Name belongs to a player who has no name"},
    {"\"Race\": \"Ith-Veran\"", "\"Race\": \"Dravik\"", "Players[2].Race does not have the costs"},
    {"\"PellamToolsEnabled\": true", "\"PellamToolsEnabled\": false",
     "PellamToolsEnabled contradicts"},
};

TEST(GameText, RefusesWhateverIsDamaged) {
    const QByteArray whole = WriteGame(SampleGame());
    for (const auto& [intact, damaged, problem] : Damages) {
        QByteArray bytes = whole;
        const qsizetype at = bytes.indexOf(intact);
        ASSERT_GE(at, 0) << intact;
        bytes.replace(at, static_cast<qsizetype>(qstrlen(intact)), damaged);
        const ReadGameResult result = ReadGame(bytes);
        EXPECT_FALSE(result.Game) << damaged;
        EXPECT_TRUE(result.Problem.contains(problem))
            << damaged << ": " << result.Problem.toStdString();
    }
    for (const char* other : {"", "PK\x03\x04", "{}", "[]", "7", "null", "\"Format\""})
        EXPECT_FALSE(ReadGame(other).Problem.isEmpty()) << other;
    for (qsizetype size = 0; size < whole.size() - 1; ++size)
        EXPECT_FALSE(ReadGame(whole.first(size)).Game) << "cut at " << size;
}

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
    EXPECT_TRUE(*loaded.Game == WithoutFigures(SampleGame()));
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
