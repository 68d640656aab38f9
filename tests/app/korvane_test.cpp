// What the controls of the main window do to the game.

#include "economy/explanation.h"
#include "tests/game_window.h"
#include "trade/trade_text.h"

#include <QAbstractItemView>
#include <QCheckBox>

namespace ksm {
namespace {

TEST(MainWindow, EveryFigureIsExplainedToItsPlayer) {
    const GameWindow game;
    game.SetPlayers(MaxPlayers);
    const Game& state = game.state.Game;
    for (const int player : {1, 10}) {
        const std::string number = std::to_string(player);
        const std::tuple<const char*, const char*, std::string> rows[]{
            {"PlayerInfluence", "Influence, Player ",
             ExplanationText(state, player, Figure::Influence)},
            {"PlayerYellowTech", "Yellow technology cost, Player ",
             ExplanationText(state, player, Figure::YellowCost)},
            {"SpaceDocks", "Space Docks, Player ", DockText(state, player)},
            {"TradePlayer", "Trade, Player ", TradeText(state, player)},
            {"PolPlay", "Place ", RankText(state, player)}};
        for (const auto& [label, heading, text] : rows) {
            EXPECT_EQ(game.Find(label, player)->Explanation().toStdString(), text) << label;
            EXPECT_EQ(game.Find(label, player)->Heading().toStdString(), heading + number);
        }
        for (const auto& [box, name, tip] :
             {std::tuple{"Enviro", "Enviro Comp., Player ", "space docks"},
              std::tuple{"PellamTools", "Pellam Tools, Player ", "one resource more"},
              std::tuple{"Micro", "Micro Tech., Player ", "three credits"}}) {
            const auto* control = game.Find<QWidget>(box, player);
            EXPECT_EQ(control->accessibleName().toStdString(), name + number);
            EXPECT_TRUE(control->toolTip().contains(tip)) << box;
        }
    }
}

TEST(Setup, OnlyAnEntryTakenFromTheListChoosesARace) {
    GameWindow game;
    game.Activate();
    auto* box = game.Find<QComboBox>("Race", 2);
    box->setFocus();
    box->lineEdit()->selectAll();
    QTest::keyClicks(box, "Altheran");
    game.Key(Qt::Key_Return);
    game.Focus("PlayerName(1)");
    Turn(box, -1);
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
