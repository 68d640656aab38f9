// What the keyboard does in the main window.

#include "tests/game_window.h"

#include <QCheckBox>
#include <QComboBox>
#include <QMenu>

namespace ksm {
namespace {

struct Keys : GameWindow {
    explicit Keys(int players = 6) {
        Find<QScrollBar>("PlayNumScroll")->setValue(11 - players);
        Activate();
    }

    void Press(Qt::Key key, Qt::KeyboardModifiers modifiers = {}) const {
        QTest::keyClick(QApplication::focusWidget(), key, modifiers);
    }
    static std::string Focused() {
        const QWidget* control = QApplication::focusWidget();
        return control ? control->objectName().toStdString() : "";
    }
    /// The names of the controls that the key leads to, once round.
    std::vector<std::string> Round(Qt::Key key) const {
        std::vector<std::string> names;
        do {
            names.push_back(Focused());
            Press(key);
        } while (names.size() < 100 && std::ranges::count(names, Focused()) == 0);
        return names;
    }
};

using Names = std::vector<std::string>;

TEST(Keys, TabGoesFromGroupToGroup) {
    Keys game(2);
    game.Find<QWidget>("PlayNumScroll")->setFocus();
    const Names setup{"PlayNumScroll", "OptionNormal",  "StartGameButton", "PlayerName(1)",
                      "Race(1)",       "DockScroll(1)", "Enviro(1)",       "Race(2)",
                      "Enviro(2)",     "AddTAbutton",   "RemoveTAButton",  "TradePlayer(1)"};
    EXPECT_EQ(game.Round(Qt::Key_Tab), setup);
    Names back(setup.rbegin(), setup.rend());
    std::ranges::rotate(back, back.end() - 1);
    EXPECT_EQ(game.Round(Qt::Key_Backtab), back);

    Keys ten(10);
    ten.Start();
    ten.Find<QWidget>("PlayerName", 1)->setFocus();
    EXPECT_LE(ten.Round(Qt::Key_Tab).size(), 20U);
}

TEST(Keys, ArrowsGoRoundInAGroupAndTabComesBackToWhereTheyWere) {
    const std::tuple<const char*, Qt::Key, Names> rows[]{
        {"PlayerName(1)", Qt::Key_Right, {"PlayerName(1)", "PlayerName(2)", "PlayerName(3)"}},
        {"PlayerName(1)", Qt::Key_Up, {"PlayerName(1)", "PlayerName(3)", "PlayerName(2)"}},
        {"DockScroll(2)", Qt::Key_Left, {"DockScroll(2)", "DockScroll(1)", "DockScroll(3)"}},
        {"Enviro(2)", Qt::Key_Down, {"Enviro(2)", "PellamTools(2)", "Micro(2)"}},
        {"TradePlayer(3)", Qt::Key_Left, {"TradePlayer(3)", "TradePlayer(2)", "TradePlayer(1)"}},
        {"InvasionPlayer(3)",
         Qt::Key_Down,
         {"InvasionPlayer(3)", "InvasionPlayer(20)", "InvasionPlayer(0)", "InvasionPlayer(1)",
          "InvasionPlayer(2)"}}};
    for (const auto& [start, key, names] : rows) {
        Keys game(3);
        game.Click("Enviro", 2);
        game.Start();
        game.Find<QWidget>(start)->setFocus();
        EXPECT_EQ(game.Round(key), names);
        game.Press(key);
        const std::string left = game.Focused();
        game.Press(Qt::Key_Tab);
        game.Press(Qt::Key_Backtab);
        EXPECT_EQ(game.Focused(), left);
    }
    Keys game(3);
    game.Start();
    game.Find<QWidget>("InvasionPlanet(11)")->setFocus();
    game.Press(Qt::Key_Down);
    EXPECT_EQ(game.Focused(), "InvasionPlanet(0)");
    game.Find<QWidget>("Enviro(1)")->setFocus();
    game.Press(Qt::Key_Down);
    EXPECT_EQ(game.Focused(), "Enviro(1)") << "disabled boxes are passed over";
}

TEST(Keys, ReturnDoesWhatSpaceDoes) {
    for (const auto key : {Qt::Key_Space, Qt::Key_Return, Qt::Key_Enter}) {
        Keys game;
        const auto press = [&](const char* control) {
            game.Find<QWidget>(control)->setFocus();
            game.Press(key);
        };
        press("Enviro(2)");
        EXPECT_TRUE(game.state.Player(2).Enviro);
        press("AddTAbutton");
        press("TradePlayer(2)");
        EXPECT_EQ(game.state.TradeMode, TradeMode::AddPartner);
        press("StartGameButton");
        EXPECT_TRUE(game.state.Started);
        EXPECT_EQ(game.Focused(), "") << "no neighbour of the button gets the focus";
    }
}

TEST(Keys, OfTheMainWindowWorkBesideIt) {
    for (const auto& [item, form] :
         {std::pair{"Dice", "DiceForm"}, std::pair{"Notes", "NoteForm"}}) {
        Keys game;
        game.Choose(item);
        auto* window = game.Find<QWidget>(form);
        ASSERT_TRUE(QTest::qWaitForWindowActive(window));
        game.Press(Qt::Key_F5);
        auto* chart = game.Find<QWidget>("TechForm");
        EXPECT_TRUE(chart->isVisible());
        chart->close();
        window->activateWindow();
        ASSERT_TRUE(QTest::qWaitForWindowActive(window));
        QTest::keyClick(window, Qt::Key_L, Qt::AltModifier);
        auto* menu = game.Find<QMenu>("MenuLaws");
        EXPECT_TRUE(menu->isVisible()) << form;
        menu->close();
    }
}

} // namespace
} // namespace ksm
