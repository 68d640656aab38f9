// What was done in the main window, taken back and made again.

#include "controls/spin_bar.h"
#include "tests/random_play.h"

#include <QCheckBox>
#include <QMenu>
#include <QPlainTextEdit>

namespace ksm {
namespace {

struct Steps : GameWindow {
    explicit Steps(const GameState& start = GameOfTwentyPlanets()) : GameWindow(start) {
        Activate();
    }

    void Undo() { QTest::keyClick(&window, Qt::Key_Z, Qt::ControlModifier); }
    void Redo() { QTest::keyClick(&window, Qt::Key_Y, Qt::ControlModifier); }
    /// The texts of the context menu without the keys; greyed ones in brackets.
    QStringList MenuTexts() {
        QContextMenuEvent click(QContextMenuEvent::Mouse, QPoint(5, 300),
                                window.mapToGlobal(QPoint(5, 300)));
        QApplication::sendEvent(window.centralWidget(), &click);
        auto* menu = Find<QMenu>("Steps");
        QStringList texts;
        for (const QAction* item : menu->actions().first(2)) {
            const QString text = item->text().section('\t', 0, 0);
            texts << (item->isEnabled() ? text : '[' + text + ']');
        }
        Close("Steps");
        return texts;
    }
};

TEST(Steps, AreTakenBackAndMadeAgainByKeyAndSaidInTheContextMenu) {
    GameState start = GameOfTwentyPlanets();
    start.Game.Player(3).Name = "Tom && Jerry";
    Steps game(start);
    EXPECT_EQ(game.MenuTexts(), QStringList({"[Undo]", "[Redo]"}));
    game.Click("Enviro", 3);
    game.Move("DockScroll(3)", 0);
    EXPECT_EQ(game.MenuTexts(), QStringList({"Undo Space Docks, Tom &&&& Jerry", "[Redo]"}));
    game.Undo();
    EXPECT_EQ(game.Caption("SpaceDocks", 3) + game.Caption("PlayerInfluence", 3), "11");
    game.Undo();
    EXPECT_FALSE(game.Find<QCheckBox>("Enviro", 3)->isChecked());
    EXPECT_EQ(game.MenuTexts(), QStringList({"[Undo]", "Redo Enviro Comp., Tom &&&& Jerry"}));
    game.Redo();
    QTest::keyClick(&game.window, Qt::Key_Z, Qt::ControlModifier | Qt::ShiftModifier);
    EXPECT_EQ(game.Caption("PlayerInfluence", 3), "10");
    game.Undo();
    game.Choose("TFree");
    EXPECT_EQ(game.MenuTexts(), QStringList({"Undo Free Trade", "[Redo]"}));
}

TEST(Steps, ADialogOrAHeldArrowOrKeyIsOneStep) {
    Steps game;
    game.Click("PlayerName", 1);
    QTest::keyClicks(game.Find<QLineEdit>("NameEntry"), "Ada");
    game.Click("NameColor", 12);
    game.Close("ColorSelectForm");
    game.Choose("MenuTechMod");
    game.Move("VScroll1(0)", 0);
    game.Move("VScroll1(2)", 3);
    game.Close("TechModForm");
    game.Choose("MenuTechMod");
    game.Close("TechModForm"); // nothing was changed
    auto* docks = game.Find<SpinBar>("DockScroll", 2);
    QTest::mousePress(docks, Qt::LeftButton, {}, QPoint(8, 5));
    docks->triggerAction(QAbstractSlider::SliderSingleStepSub); // as holding it does
    game.Move("DockScroll(2)", 9);                              // back where it began in between
    game.Move("DockScroll(2)", 7);
    QTest::mouseRelease(docks, Qt::LeftButton, {}, QPoint(8, 5));
    QTest::keyPress(docks, Qt::Key_Up);
    QTest::keyPress(docks, Qt::Key_Up);
    QTest::keyRelease(docks, Qt::Key_Up);
    const auto shown = [&] {
        return game.Caption("SpaceDocks", 2) + game.Caption("PlayerGreenTech", 1) +
               game.Caption("PlayerRedTech", 1) + game.Caption("PlayerName", 1);
    };
    for (const char* figures : {"54542Ada", "34542Ada", "14542Ada", "13030Ada", "13030Player 1"}) {
        EXPECT_EQ(shown(), figures);
        game.Undo();
    }
    EXPECT_EQ(game.MenuTexts().first(), "[Undo]");
}

TEST(Steps, ASelectionIsOneThatCanBeTakenBackInItsMiddle) {
    Steps game;
    const auto select = [&](std::initializer_list<const char*> clicks) {
        for (const char* control : clicks) {
            game.Click(control);
        }
        return game.MenuTexts().first().toStdString();
    };
    EXPECT_EQ(select({"AddTAbutton", "TradePlayer(3)"}), "Undo Add");
    game.Undo();
    EXPECT_EQ(game.state.Game.TradeInfo, "\r\nPress Add to make a Trade Agreement");
    game.Redo();
    EXPECT_EQ(select({"TradePlayer(5)"}), "Undo agreement of Player 3 and Player 5");
    game.Undo();
    EXPECT_EQ(select({}), "[Undo]");
    game.Redo();
    select({"AddTAbutton", "TradePlayer(5)", "TradePlayer(3)"});
    game.Undo();
    EXPECT_EQ(select({}), "[Undo]") << "what was refused is no step";
    select({"AddTAbutton", "TradePlayer(4)", "Enviro(1)"});
    game.Undo();
    EXPECT_EQ(select({}), "Undo Add") << "what else is done in a selection is a step";
    game.Choose("Tres");
    EXPECT_EQ(select({"TradePlayer(2)", "TradePlayer(7)"}), "Undo Economic Independance");
    game.Undo();
    EXPECT_EQ(select({}), "[Undo]") << "it took the selection over";
}

TEST(Steps, StartIsFinalAndALoadedGameIsNot) {
    Steps game;
    game.Race(1, Race::Altheran);
    game.Start();
    game.Undo();
    EXPECT_TRUE(game.state.Game.Started() && game.state.Game.Player(1).Race == Race::Altheran);
    const GameState before = game.state;
    game.Load(GameOfTwentyPlanets());
    EXPECT_FALSE(game.state.Game.Started());
    EXPECT_EQ(game.MenuTexts().first(), "Undo Load Game");
    game.Activate();
    game.Undo();
    EXPECT_TRUE(game.state == before);
}

TEST(Steps, LeaveAloneWhichOwnerTheBoardListsAndTheNotes) {
    Steps game;
    game.Start();
    game.Drag(0, 3);
    game.Click("InvasionPlayer", 3);
    game.Choose("Notes");
    auto* notes = game.Find<QPlainTextEdit>("Aant");
    QTest::keyClicks(notes, "tax");
    game.Undo();
    EXPECT_EQ(game.Caption("InvasionPlanet", 0) + game.state.NotesText, "tax");
    EXPECT_EQ(game.state.View.BoardPlayer, 3);
    game.Redo();
    QTest::keyClick(notes, Qt::Key_Z, Qt::ControlModifier);
    EXPECT_EQ(game.Caption("InvasionPlanet", 0) + game.state.NotesText, "Quessin");
}

/// The game and its picture, both without what steps leave alone: how one looks at the game.
std::pair<Game, QImage> Seen(Steps& game) {
    game.state.View = {};
    game.window.centralWidget()->setFocus();
    game.window.ShowGame();
    return {game.state.Game, Picture(*game.window.centralWidget())};
}

TEST(Steps, UndoingAllAndRedoingAllGivesTheSameStatesAndPictures) {
    Steps game;
    RandomPlay play(game, 11);
    for (int round = 0; round < 3; ++round) {
        for (int step = 0; step < 80; ++step) {
            play.Step();
        }
        game.Activate();
        std::vector<std::pair<Game, QImage>> seen;
        while (game.MenuTexts().first() != "[Undo]") {
            seen.push_back(Seen(game));
            game.Undo();
        }
        EXPECT_GT(seen.size(), 10U);
        for (; !seen.empty(); seen.pop_back()) {
            game.Redo();
            ASSERT_TRUE(Seen(game) == seen.back()) << seen.size() << " steps from the last";
        }
        EXPECT_EQ(game.MenuTexts().last(), "[Redo]");
    }
}

} // namespace
} // namespace ksm
