// What the keyboard does in the main window.

#include "tests/game_window.h"

namespace ksm {
namespace {

/// The names of the controls that the key leads to, once round.
std::string Round(GameWindow& game, Qt::Key key) {
    std::string names;
    do {
        names += game.Focused() + ' ';
        game.Key(key);
        EXPECT_TRUE(OnScreen(game.window) == Picture(game.window))
            << "the focus was not painted anew: " << game.Focused();
    } while (names.size() < 1000 && names.find(game.Focused()) == std::string::npos);
    return names;
}

TEST(Keys, TabGoesFromGroupToGroupAndArrowsWithinOne) {
    GameWindow game;
    game.SetPlayers(3);
    game.Activate();
    game.Focus("PlayNumScroll");
    EXPECT_EQ(Round(game, Qt::Key_Tab),
              "PlayNumScroll OptionNormal StartGameButton PlayerName(1) Race(1) DockScroll(1) "
              "Enviro(1) Race(2) Enviro(2) Race(3) Enviro(3) AddTAbutton RemoveTAButton "
              "TradePlayer(1) ")
        << "nothing that the setup panel covers";
    game.Click("Enviro", 2);
    game.Start();
    const std::pair<Qt::Key, std::string> rounds[]{
        {Qt::Key_Up, "PlayerName(1) PlayerName(3) PlayerName(2) "},
        {Qt::Key_Left, "DockScroll(2) DockScroll(1) DockScroll(3) "},
        {Qt::Key_Down, "Enviro(2) PellamTools(2) Micro(2) "},
        {Qt::Key_Down, "Enviro(1) "}, // disabled boxes are passed over
        {Qt::Key_Down, "InvasionPlayer(3) InvasionPlayer(20) InvasionPlayer(0) InvasionPlayer(1) "
                       "InvasionPlayer(2) "}};
    for (const auto& [key, names] : rounds) {
        game.Focus(names.substr(0, names.find(' ')).c_str());
        EXPECT_EQ(Round(game, key), names);
    }
    game.Focus("InvasionPlanet(11)");
    game.Key(Qt::Key_Down);
    EXPECT_EQ(game.Focused(), "InvasionPlanet(0)");
}

TEST(Keys, ReturnDoesWhatSpaceDoes) {
    for (const auto key : {Qt::Key_Space, Qt::Key_Return, Qt::Key_Enter}) {
        GameWindow game;
        game.Activate();
        for (const char* control :
             {"Enviro(2)", "AddTAbutton", "TradePlayer(2)", "StartGameButton"}) {
            game.Focus(control);
            game.Key(Qt::Key_A); // does nothing
            game.Key(key);
        }
        EXPECT_TRUE(game.state.Game.Player(2).Enviro);
        EXPECT_EQ(game.state.Game.TradeMode, TradeMode::AddPartner);
        EXPECT_TRUE(game.state.Game.Started());
        EXPECT_EQ(game.Focused(), "") << "no neighbour of the button that went gets the focus";
    }
}

} // namespace
} // namespace ksm
