// What the controls of the main window do to the game.

#include "economy/explanation.h"
#include "tests/game_window.h"
#include "trade/trade_text.h"

#include <QAbstractItemView>

namespace ksm {
namespace {

TEST(MainWindow, EveryControlActsForItsPlayerAndExplainsHim) {
    for (const int player : {1, 10}) {
        SCOPED_TRACE(player);
        GameWindow game;
        game.Move("PlayNumScroll", 1);
        game.Race(player, Race::Orrun);
        EXPECT_EQ(game.Caption("RaceLabel", player), "Orrun");
        for (const char* box : {"Enviro", "PellamTools", "Micro"}) {
            game.Click(box, player);
        }
        const PlayerRecord& record = game.state.Player(player);
        EXPECT_TRUE(record.Enviro && record.PellamTools && record.Micro);
        game.Find<QScrollBar>("DockScroll", player)->setValue(3);
        EXPECT_EQ(game.Caption("SpaceDocks", player) + game.Caption("PlayerInfluence", player),
                  "77");
        game.Click("AddTAbutton");
        game.Click("TradePlayer", player);
        game.Click("TradePlayer", 2);
        EXPECT_EQ(game.state.Cell(player, 2), Agreement);
        game.Start();
        game.Drag(1, player);
        EXPECT_EQ(game.state.Planet(1).Owner, player);
        game.Click("InvasionPlayer", player);
        EXPECT_EQ(game.state.View.BoardPlayer, player);
        game.Click("PlayerName", player);
        QTest::keyClicks(game.Find<QLineEdit>("NameEntry"), "Zoe");
        for (const char* label : {"PlayerName", "InvasionPlayer", "TradePlayer"}) {
            EXPECT_EQ(game.Caption(label, player), "Zoe") << label;
        }
        const Game& state = game.state;
        for (const auto& [label, text] :
             {std::pair{"PlayerInfluence", ExplanationText(state, player, Figure::Influence)},
              std::pair{"PlayerYellowTech", ExplanationText(state, player, Figure::YellowCost)},
              std::pair{"SpaceDocks", DockText(state, player)},
              std::pair{"TradePlayer", TradeText(state, player)},
              std::pair{"PolPlay", RankText(state, player)}}) {
            EXPECT_EQ(game.Find(label, player)->Explanation().toStdString(), text) << label;
        }
    }
}

TEST(Setup, ThePlayerCountSnapsBackIntoItsRange) {
    GameWindow game;
    for (const auto& [written, stands, players] : {std::tuple{0, 1, 10}, std::tuple{10, 9, 2},
                                                   std::tuple{32767, 9, 2}, std::tuple{3, 3, 8}}) {
        game.Move("PlayNumScroll", written);
        EXPECT_EQ(game.Find<QScrollBar>("PlayNumScroll")->value(), stands);
        EXPECT_EQ(game.state.NumPlayers, players);
    }
}

TEST(Setup, NothingReachesWhatThePanelCoversUntilStart) {
    GameWindow game;
    QWidget* client = game.window.centralWidget();
    for (const QPoint place : {QPoint(20, 100), QPoint(200, 100), QPoint(330, 175)}) {
        EXPECT_EQ(client->childAt(place), game.Find<QWidget>("GameSetupPic"));
    }
    EXPECT_FALSE(game.Owner(AllPlanets)->isEnabled()) << "nor does the keyboard";
    game.Activate();
    game.Start();
    EXPECT_EQ(client->childAt(200, 7), game.Owner(AllPlanets));
    EXPECT_TRUE(game.Owner(AllPlanets)->isEnabled());
    EXPECT_EQ(QApplication::focusWidget(), client) << "no neighbour of the button gets the focus";
    EXPECT_EQ(game.Caption("PolPlay", 1), "") << "ranked, and nobody has a name yet";
}

TEST(Setup, OnlyAnEntryTakenFromTheListChoosesARace) {
    GameWindow game;
    game.Activate();
    auto* box = game.Find<QComboBox>("Race", 2);
    box->setFocus();
    box->lineEdit()->selectAll();
    QTest::keyClicks(box, "Altheran");
    QTest::keyClick(box, Qt::Key_Return);
    game.Find<QWidget>("PlayerName", 1)->setFocus();
    QWheelEvent wheel(QPointF(5, 5), QPointF(5, 5), {}, QPoint(0, -120), Qt::NoButton,
                      Qt::NoModifier, Qt::NoScrollPhase, false);
    QApplication::sendEvent(box, &wheel);
    EXPECT_EQ(game.Caption("RaceLabel", 2), "Race");
    EXPECT_EQ(box->currentText(), "Race") << "the box never claims a race that is not in force";

    game.Race(1, Race::Altheran);
    EXPECT_EQ(game.Caption("PlayerPlanets", 1), "1");
    game.state.Planet(0).Owner = 5;
    game.Race(1, Race::Altheran);
    EXPECT_EQ(game.state.Planet(0).Owner, 1) << "choosing the same entry again takes the home back";
    QTest::keyClick(box, Qt::Key_Down);
    ASSERT_TRUE(box->view()->isVisible());
    QTest::keyClick(box->view(), Qt::Key_Down);
    QTest::keyClick(box->view(), Qt::Key_Return);
    EXPECT_EQ(game.Caption("RaceLabel", 2), "Quorvi");
    EXPECT_EQ(game.state.Planet(0).Owner, 1) << "the entries passed over take no homes";
}

TEST(Laws, ActAtOnceAndAreMarked) {
    GameState state = GameOfTwentyPlanets();
    state.Player(1).Name = "Ada";
    state.Player(2).Name = "Bob";
    state.Cell(1, 2) = Agreement;
    for (int planet = 0; planet < 4; ++planet) {
        state.Planet(planet).Owner = planet < 3 ? 1 : 2;
    }
    state.Planet(3).Influence = 3;
    GameWindow game(state);
    game.Start();
    const auto shown = [&] {
        return game.Caption("PlayerCredits", 1) + " " + game.Caption("PlayerCredits", 2) + " " +
               game.Caption("PInf", 1) + game.Caption("PolPlay", 1);
    };
    for (const auto& [law, figures] :
         {std::pair{"MenuLabour", "4 6 6Ada"}, std::pair{"MenuOrlen", "7 5 3Bob"},
          std::pair{"TFree", "12 10 3Ada"}, std::pair{"TRestr", "7 3 3Ada"},
          std::pair{"Tres", "7 5 3Ada"}}) {
        for (const bool isOn : {true, false}) {
            game.Choose(law);
            EXPECT_EQ(shown(), isOn ? figures : "7 5 3Ada") << law;
            EXPECT_EQ(game.Find<QAction>(law)->isChecked(), isOn) << law;
        }
    }
    game.Choose("TStop");
    EXPECT_EQ(shown(), "6 2 3Ada");
}

} // namespace
} // namespace ksm
