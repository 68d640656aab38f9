// What the controls of the main window do to the game.

#include "economy/explanation.h"
#include "tests/game_window.h"
#include "trade/trade_text.h"

#include <QAbstractItemView>

namespace ksm {
namespace {

TEST(MainWindow, EveryFigureIsExplainedToItsPlayer) {
    const GameWindow game;
    const Game& state = game.state.Game;
    for (const int player : {1, 10}) {
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

TEST(Setup, NothingReachesWhatThePanelCoversUntilStart) {
    GameWindow game;
    QWidget* client = game.window.centralWidget();
    EXPECT_EQ(client->childAt(200, 7), game.Find<QWidget>("GameSetupPic"));
    EXPECT_FALSE(game.Owner(AllPlanets)->isEnabled()) << "nor does the keyboard";
    game.Activate();
    game.Start();
    EXPECT_EQ(client->childAt(200, 7), game.Owner(AllPlanets));
    EXPECT_EQ(QApplication::focusWidget(), client) << "no neighbour of the button gets the focus";
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
    game.state.Game.Planet(0).Owner = 5;
    game.Race(1, Race::Altheran);
    EXPECT_EQ(game.state.Game.Planet(0).Owner, 1)
        << "choosing the same entry again takes the home back";
    QTest::keyClick(box, Qt::Key_Down);
    ASSERT_TRUE(box->view()->isVisible());
    QTest::keyClick(box->view(), Qt::Key_Down);
    QTest::keyClick(box->view(), Qt::Key_Return);
    EXPECT_EQ(game.Caption("RaceLabel", 2), "Quorvi");
    EXPECT_EQ(game.state.Game.Planet(0).Owner, 1) << "the entries passed over take no homes";
}

} // namespace
} // namespace ksm
