// What the keyboard does in the main window.

#include "tests/game_window.h"

#include <QMenu>

namespace ksm {
namespace {

struct Keys : GameWindow {
    explicit Keys(int players = 6) {
        SetPlayers(players);
        Activate();
    }

    void Press(Qt::Key key) const { QTest::keyClick(QApplication::focusWidget(), key); }
    /// The names of the controls that the key leads to, once round.
    std::string Round(Qt::Key key) {
        std::string names;
        do {
            names += Focused() + ' ';
            Press(key);
            EXPECT_TRUE(OnScreen(window) == Picture(window))
                << "the focus was not painted anew: " << Focused();
        } while (names.size() < 1000 && names.find(Focused()) == std::string::npos);
        return names;
    }
};

TEST(Keys, TabGoesFromGroupToGroup) {
    Keys game(2);
    game.Focus("PlayNumScroll");
    EXPECT_EQ(game.Round(Qt::Key_Tab),
              "PlayNumScroll OptionNormal StartGameButton PlayerName(1) Race(1) DockScroll(1) "
              "Enviro(1) Race(2) Enviro(2) AddTAbutton RemoveTAButton TradePlayer(1) ")
        << "nothing that the setup panel covers";
    EXPECT_EQ(game.Round(Qt::Key_Backtab),
              "PlayNumScroll TradePlayer(1) RemoveTAButton AddTAbutton Enviro(2) Race(2) Enviro(1) "
              "DockScroll(1) Race(1) PlayerName(1) StartGameButton OptionNormal ");
    game.Start();
    game.Focus("PlayerName(1)");
    EXPECT_EQ(game.Round(Qt::Key_Tab),
              "PlayerName(1) DockScroll(1) Enviro(1) Enviro(2) InvasionPlayer(20) "
              "InvasionPlanet(0) PlanetScroller AddTAbutton RemoveTAButton TradePlayer(1) ");
}

TEST(Keys, ArrowsGoRoundInAGroupAndTabComesBackToWhereTheyWere) {
    const std::pair<Qt::Key, std::string> rows[]{
        {Qt::Key_Right, "PlayerName(1) PlayerName(2) PlayerName(3) "},
        {Qt::Key_Up, "PlayerName(1) PlayerName(3) PlayerName(2) "},
        {Qt::Key_Left, "DockScroll(2) DockScroll(1) DockScroll(3) "},
        {Qt::Key_Down, "Enviro(2) PellamTools(2) Micro(2) "},
        {Qt::Key_Down, "Enviro(1) "}, // disabled boxes are passed over
        {Qt::Key_Left, "TradePlayer(3) TradePlayer(2) TradePlayer(1) "},
        {Qt::Key_Down, "InvasionPlayer(3) InvasionPlayer(20) InvasionPlayer(0) InvasionPlayer(1) "
                       "InvasionPlayer(2) "}};
    Keys game(3);
    game.Click("Enviro", 2);
    game.Start();
    for (const auto& [key, names] : rows) {
        game.Focus(names.substr(0, names.find(' ')).c_str());
        EXPECT_EQ(game.Round(key), names);
        game.Press(key);
        const std::string left = game.Focused();
        game.Press(Qt::Key_Tab);
        game.Press(Qt::Key_Backtab);
        EXPECT_EQ(game.Focused(), left);
    }
    game.Focus("InvasionPlanet(11)");
    game.Press(Qt::Key_Down);
    EXPECT_EQ(game.Focused(), "InvasionPlanet(0)");
}

TEST(Keys, ReturnDoesWhatSpaceDoes) {
    for (const auto key : {Qt::Key_Space, Qt::Key_Return, Qt::Key_Enter}) {
        Keys game;
        for (const char* control :
             {"Enviro(2)", "AddTAbutton", "TradePlayer(2)", "StartGameButton"}) {
            game.Focus(control);
            game.Press(key);
        }
        EXPECT_TRUE(game.state.Game.Player(2).Enviro);
        EXPECT_EQ(game.state.Game.TradeMode, TradeMode::AddPartner);
        EXPECT_TRUE(game.state.Game.Started());
    }
}

TEST(Keys, ARaceBoxPassesOnWhatTheMainWindowNeeds) {
    Keys game;
    game.Click("Enviro", 1);
    game.Focus("Race(2)");
    QTest::keyClicks(QApplication::focusWidget(), "x");
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Z, Qt::ControlModifier);
    EXPECT_FALSE(game.state.Game.Player(1).Enviro);
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_X, Qt::ControlModifier);
    EXPECT_FALSE(game.window.isVisible());
}

TEST(Keys, OfTheMainWindowWorkBesideIt) {
    for (const auto& [item, form] :
         {std::pair{"Dice", "DiceForm"}, std::pair{"Notes", "NoteForm"}}) {
        Keys game;
        game.Choose(item);
        auto* window = game.Find<QWidget>(form);
        const auto isActive = [&] { return QApplication::activeWindow() == window; };
        ASSERT_TRUE(QTest::qWaitFor(isActive));
        game.Press(Qt::Key_F5);
        game.Close("TechForm");
        window->activateWindow();
        ASSERT_TRUE(QTest::qWaitFor(isActive));
        QTest::keyClick(window, Qt::Key_L, Qt::AltModifier);
        auto* menu = game.Find<QMenu>("MenuLaws");
        EXPECT_TRUE(menu->isVisible()) << form;
        menu->close();
    }
}

} // namespace
} // namespace ksm
