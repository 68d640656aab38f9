#include "controls/message_label.h"
#include "tests/game_window.h"

namespace ksm {
namespace {

struct TradeGame : GameWindow {
    TradeGame() {
        Start();
        for (int player = 1; player <= MaxPlayers; ++player) {
            state.Player(player).Name = std::string("P").append(std::to_string(player));
        }
    }

    std::string Info() const { return Find<MessageLabel>("TInfo")->Caption().toStdString(); }
    void Agree(int one, int other) const {
        Click("AddTAbutton");
        Click("TradePlayer", one);
        Click("TradePlayer", other);
    }
    /// The colour halfway between two labels.
    QColor Between(int one, int other) const {
        auto* panel = Find<QWidget>("TradePic");
        const QPoint middle =
            (Find("TradePlayer", one)->pos() + Find("TradePlayer", other)->pos()) / 2 +
            QPoint(15, 8);
        return panel->grab().toImage().pixelColor(middle);
    }
};

const QColor Background(0xB8, 0xC0, 0xCA);

TEST(TradePanel, AnAgreementIsCountedPaidAndDrawn) {
    TradeGame game;
    game.state.Planet(0).Owner = 5;
    game.Agree(1, 5);
    EXPECT_EQ(game.Info(), "P5 and P1 make a TA");
    EXPECT_EQ(game.Find("TradeNumber")->Caption(), "There is one Trade Agreement in play.");
    EXPECT_EQ(game.Caption("PlayerCredits", 1), "1");
    game.Click("PlayerName", 1);
    game.Click("NameColor", 3);
    EXPECT_EQ(game.Between(1, 5), QColor(255, 128, 0)) << "the colour it was made in";
    game.Agree(2, 3);
    EXPECT_EQ(game.Between(1, 5), QColor(255, 128, 0));

    game.Click("RemoveTAButton");
    game.Click("TradePlayer", 3);
    game.Click("TradePlayer", 2);
    EXPECT_EQ(game.Find("TradeNumber")->Caption(), "There is one Trade Agreement in play.");
    EXPECT_EQ(game.Between(1, 5), QColor(255, 255, 0)) << "drawn anew";
}

TEST(TradePanel, IndependenceIsMarkedRedWithAWhiteCore) {
    TradeGame game;
    game.Choose("Tres");
    EXPECT_TRUE(game.Find<QAction>("Tres")->isChecked());
    game.Click("TradePlayer", 1);
    game.Choose("TStop");
    game.Click("TradePlayer", 4);
    EXPECT_EQ(game.Between(1, 4), QColor(Qt::white));
    game.Choose("Tres");
    EXPECT_FALSE(game.Find<QAction>("Tres")->isChecked());
    EXPECT_EQ(game.Between(1, 4), Background);
}

TEST(TradePanel, TradeLawsShowTheirMarkAndFigures) {
    TradeGame game;
    game.Agree(1, 5);
    game.Choose("TFree");
    EXPECT_TRUE(game.Find<QAction>("TFree")->isChecked());
    EXPECT_EQ(game.Caption("PlayerCredits", 5), "5");
    game.Choose("TStop");
    EXPECT_EQ(game.Caption("PlayerCredits", 5) + game.Info(), "0\r\n\r\nTRADE STOP!");
    EXPECT_EQ(game.Between(1, 5), Background);
    game.Choose("TFree");
    EXPECT_FALSE(game.Find<QAction>("TFree")->isChecked());
}

} // namespace
} // namespace ksm
