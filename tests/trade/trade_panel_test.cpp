#include "controls/message_label.h"
#include "tests/game_window.h"

namespace ksm {
namespace {

/// The colour halfway between the labels of players 1 and 5.
QColor Line(const GameWindow& game) {
    const QPoint labels = game.Find("TradePlayer", 1)->pos() + game.Find("TradePlayer", 5)->pos();
    return Picture(*game.Find<QWidget>("TradePic")).pixelColor(labels / 2 + QPoint(15, 8));
}

TEST(TradePanel, EveryClickIsAnsweredCountedPaidAndDrawn) {
    const QColor none(0xB8, 0xC0, 0xCA);
    const QColor orange(255, 128, 0);
    const QColor yellow(Qt::yellow);
    const std::tuple<const char*, const char*, const char*, const char*, QColor> rows[]{
        {"RemoveTAButton", "There are no Trade Agreements to remove.", "are no", "0", none},
        {"AddTAbutton", "\r\nSelect first player...", "are no", "0", none},
        {"TradePlayer(1)", "P1 makes Trade Agreement with...", "are no", "0", none},
        {"TradePlayer(5)", "P5 and P1 make a TA", "is one", "1", orange},
        {"PlayerName(1)", "P5 and P1 make a TA", "is one", "1", orange},
        {"NameColor(3)", "P5 and P1 make a TA", "is one", "1", orange}, // as it was made
        {"ColorOK", "P5 and P1 make a TA", "is one", "1", orange},
        {"AddTAbutton", "\r\nSelect first player...", "is one", "1", orange},
        {"TradePlayer(2)", "P2 makes Trade Agreement with...", "is one", "1", orange},
        {"TradePlayer(3)", "P3 and P2 make a TA", "are 2", "1", orange},
        {"RemoveTAButton", "\r\nSelect first player...", "are 2", "1", orange},
        {"TradePlayer(3)", "P3 breaks Trade Agreement with...", "are 2", "1", orange},
        {"TradePlayer(2)", "P2 and P3 break their TA", "is one", "1", yellow}, // drawn anew
        {"Tres", "Select First Player...", "is one", "1", yellow},
        {"TradePlayer(5)", "P5 is not allowed to trade with...", "is one", "1", yellow},
        {"TradePlayer(1)", "P1 and P5 are not allowed to trade with eachother", "are no", "0",
         Qt::white},
        {"TStop", "\r\n\r\nTRADE STOP!", "are no", "0", Qt::white},
        {"Tres", "Forced Economic Independance dissolved.", "are no", "0", none},
    };
    GameWindow game;
    game.Start();
    for (int player = 1; player <= MaxPlayers; ++player) {
        game.state.Player(player).Name = std::string("P").append(std::to_string(player));
        game.state.Player(player).Named = true;
    }
    game.state.Planet(0).Owner = 5;
    int number = 0;
    for (const auto& [control, info, count, credits, line] : rows) {
        SCOPED_TRACE(testing::Message() << "click " << ++number << ", on " << control);
        if (auto* law = game.window.findChild<QAction*>(control)) {
            law->trigger();
        } else {
            game.Click(control);
        }
        EXPECT_EQ(game.Find<MessageLabel>("TInfo")->Caption().toStdString(), info);
        EXPECT_TRUE(game.Find("TradeNumber")->Caption().contains(count));
        EXPECT_EQ(game.Caption("PlayerCredits", 1), credits);
        EXPECT_EQ(Line(game), line);
    }
}

} // namespace
} // namespace ksm
