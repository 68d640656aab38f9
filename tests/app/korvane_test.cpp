// What the controls of the main window do to the game.

#include "tests/game_window.h"

#include <QAbstractItemView>

namespace ksm {
namespace {

TEST(Setup, TheNumberOfPlayersStaysInItsRange) {
    const GameWindow game;
    for (const auto& [position, players] : {std::pair{0, 10}, {5, 6}, {10, 2}, {1, 10}}) {
        game.Move("PlayNumScroll", position);
        EXPECT_EQ(game.state.Game.NumPlayers, players);
    }
}

TEST(Setup, OnlyAnEntryTakenFromTheListChoosesARace) {
    GameWindow game;
    game.Activate();
    auto* box = game.Find<QComboBox>("Race", 2);
    game.Click("Enviro", 2);
    box->setFocus();
    box->lineEdit()->selectAll();
    QTest::keyClicks(box, "Altheran");
    game.Undo();
    EXPECT_FALSE(game.state.Game.Player(2).Enviro) << "the game's steps, not those of the text";
    game.Key(Qt::Key_Return);
    game.Focus("PlayerName(1)");
    Turn(box, -1);
    EXPECT_EQ(box->currentText(), "Race") << "the box never claims a race that is not in force";

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
