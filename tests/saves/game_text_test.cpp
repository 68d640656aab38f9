#include "tests/saves/sample_game.h"
#include "trade/trade_diagram.h"

#include <QFile>

#include <gtest/gtest.h>

namespace ksm {
namespace {

// Whoever changes the format must still be able to read the games that people have.
TEST(GameText, ReadsAndWritesGamesOfTheFirstVersion) {
    QFile file(FIRST_SAVED_GAME);
    ASSERT_TRUE(file.open(QIODevice::ReadOnly));
    const QByteArray saved = file.readAll();
    EXPECT_EQ(*WriteGame(SampleGame()), saved);
    int mode = 0;
    for (const char* word : {"idle", "add first", "add partner", "remove first", "remove partner",
                             "independence first", "independence second"}) {
        QByteArray bytes = QByteArray(saved).replace("add partner", word);
        // While a pair is picked, one chosen before may trade.
        mode > 4 ? bytes.replace("\"IndepSecond\": 9", "\"IndepSecond\": 3") : bytes;
        EXPECT_EQ(static_cast<int>(ReadGame(bytes)->Game.TradeMode), mode++);
    }
}

TEST(GameText, WhatAGameCanHoldCanBeSavedAndNoMore) {
    GameState game = SampleGame();
    game.Game.Player(3).Name = "half \xED\xA0\xBD of a pair, cut \xF0\x9F";
    for (const auto modifier : {std::int16_t{0}, std::int16_t{MaxModifier}}) {
        game.Game.GreenModifier = game.Game.BlueModifier = modifier;
        game.Game.YellowModifier = game.Game.RedModifier = modifier;
        EXPECT_TRUE(ReadGame(*WriteGame(game)));
    }
    game.Game.IndepFirst = game.Game.IndepSecond = 1; // a pair that forbids nothing
    for (int maker = 1; maker <= MaxPlayers; ++maker) {
        for (int partner = 1; partner <= MaxPlayers; ++partner) {
            game.Game.Cell(maker, partner) = maker < partner ? Agreement : NoAgreement;
        }
    }
    RedrawTradeDiagram(game.Game);
    EXPECT_EQ(ReadGame(*WriteGame(game))->Game.TradeCount, 45);
    const QByteArray marked =
        QByteArray(*WriteGame(SampleGame())).replace("line 1", "\\uFEFFline 1");
    EXPECT_TRUE(*ReadGame(marked) == SampleGame()) << "a byte order mark is no letter";
    game.Game.Player(game.Game.NumPlayers).TradeRing = 3;
    EXPECT_FALSE(ReadGame(*WriteGame(game))) << "the last player is checked, too";
}

// What stands in a whole file at least once, what damage makes of it, and what is then reported.
const std::array<const char*, 3> Damages[]{
    // Kinds of files.
    {"Format", "Formal", "not a saved game of this program"},
    {"\"Version\": 1", "\"Version\": 2, \"New\": {}", "later version"},
    {"\"Version\": 1\n}", "\"Version\": 1\n", "or it is damaged"},
    // Members.
    {"\"StartTime\": ", "\"Start\": ", "Game.StartTime is missing"},
    {"\"NumPlayers\": 4", "\"NumPlayers\": 4, \"Zeal\": 1", "Game.Zeal is unknown"},
    {"\"Format\"", "\"Zeal\": 1, \"Format\"", "Zeal is unknown"},
    // Types and ranges.
    {"\"Named\": true", "\"Named\": 1", "Players[2].Named is neither true nor false"},
    {"\"NumPlayers\": 4", "\"NumPlayers\": 11", "NumPlayers is not a whole number from 2 to 10"},
    {"\"red\"", "\"Red\"", "Game.Planets[1].Specialty is none of the words"},
    {"#0102FE", "#0102FG", "Players[2].NameColours.Back is not a colour"},
    {"\"Laws\": {", "\"Laws\": 1, \"Zeal\": {", "Game.Laws is not an object"},
    {"line 1", "line \\uD83D", "Game.NotesText is not a text"},
    // References and lengths.
    {"\"Players\": [", "\"Players\": [{},", "Game.Players is not a list of 10 to 10"},
    // Parts that do not agree with one another.
    {"\"Partner\": 5", "\"Partner\": 3", "TradeAgreements holds an agreement that cannot be made"},
    {"\"Partner\": 1\n", "\"Partner\": 4\n", "TradeAgreements holds an agreement that cannot"},
    {"\"IndepSecond\": 9", "\"IndepSecond\": 3", "TradeAgreements holds one of the pair"},
    {"\"TradeFirst\": 3", "\"TradeFirst\": 0", "Game.TradeFirst names no player"},
    {"\"Named\": true", "\"Named\": false", "Players[2].Name belongs to a player who has no name"},
    {"\"Enviro\": false", "\"Enviro\": true", "Players[0].PellamToolsEnabled contradicts"},
    {"\"MicroEnabled\": true", "\"MicroEnabled\": false", "Players[2].MicroEnabled contradicts"},
    {"\"TradeRing\": 4", "\"TradeRing\": 5", "Players[0].TradeRing is one without"},
    {"\"TradeRing\": 10", "\"TradeRing\": 9", "Players[9].TradeRing is one without"},
    {"\"Width\": 3", "\"Width\": 2", "TradeStrokes does not hold one line for each agreement"},
    {"\"BoardPlayer\": 3", "\"BoardPlayer\": 5", "BoardPlayer is no owner that the board can show"},
    {"\"StartTime\": 1795633200000", "\"StartTime\": 0",
     "BoardPlayer is no owner that the board can show"},
    {"\"BoardPosition\": 4", "\"BoardPosition\": 5", "BoardPosition lies behind the end"},
};

TEST(GameText, RefusesWhateverIsDamaged) {
    const QByteArray whole = *WriteGame(SampleGame());
    for (const auto& [intact, damaged, problem] : Damages) {
        QByteArray bytes = whole;
        const qsizetype at = bytes.indexOf(intact);
        ASSERT_GE(at, 0) << intact;
        bytes.replace(at, static_cast<qsizetype>(qstrlen(intact)), damaged);
        const Outcome<GameState> result = ReadGame(bytes);
        EXPECT_NE(result.Reason().find(problem), std::string::npos)
            << damaged << ": " << result.Reason();
    }
    for (const char* other : {"", "PK\x03\x04", "{}", "[]", "7", "null", "\"Format\""}) {
        EXPECT_FALSE(ReadGame(other)) << other;
    }
    const QByteArray kept = *WriteGame(SampleGame(), QJsonDocument::Compact);
    for (qsizetype size = 0; size < kept.size(); ++size) {
        EXPECT_FALSE(ReadGame(kept.first(size))) << "cut at " << size;
    }
}

} // namespace
} // namespace ksm
