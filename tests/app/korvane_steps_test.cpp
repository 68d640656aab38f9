// What was done in the main window, taken back and made again.

#include "controls/spin_bar.h"
#include "dialogs/load_form.h"
#include "tests/random_play.h"

#include <QCheckBox>
#include <QComboBox>
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
        for (const QAction* item : menu->actions()) {
            const QString text = item->text().section('\t', 0, 0);
            texts << (item->isEnabled() ? text : '[' + text + ']');
        }
        menu->close();
        DeleteClosed();
        return texts;
    }
};

TEST(Steps, AreTakenBackAndMadeAgainByKeyAndSaidInTheContextMenu) {
    GameState start = GameOfTwentyPlanets();
    start.Player(3).Name = "Tom && Jerry";
    Steps game(start);
    EXPECT_EQ(game.MenuTexts(), QStringList({"[Undo]", "[Redo]"}));
    game.Click("Enviro", 3);
    game.Find<QScrollBar>("DockScroll", 3)->setValue(0);
    EXPECT_EQ(game.MenuTexts(), QStringList({"Undo Space Docks, Tom &&&& Jerry", "[Redo]"}));
    game.Undo();
    EXPECT_EQ(game.Caption("SpaceDocks", 3), "1");
    EXPECT_EQ(game.Caption("PlayerInfluence", 3), "1");
    game.Undo();
    EXPECT_FALSE(game.Find<QCheckBox>("Enviro", 3)->isChecked());
    EXPECT_EQ(game.Caption("PlayerInfluence", 3), "0");
    EXPECT_EQ(game.MenuTexts(), QStringList({"[Undo]", "Redo Enviro Comp., Tom &&&& Jerry"}));
    game.Redo();
    QTest::keyClick(&game.window, Qt::Key_Z, Qt::ControlModifier | Qt::ShiftModifier);
    EXPECT_EQ(game.Caption("PlayerInfluence", 3), "10");
}

TEST(Steps, ADialogOrAHeldArrowIsOneStep) {
    Steps game;
    game.Click("PlayerName", 1);
    QTest::keyClicks(game.Find<QLineEdit>("NameEntry"), "Ada");
    game.Click("NameColor", 12);
    game.Click("ColorOK");
    DeleteClosed();
    game.Choose("MenuTechMod");
    game.Find<QScrollBar>("VScroll1", 0)->setValue(0);
    game.Find<QScrollBar>("VScroll1", 2)->setValue(3);
    game.Find<QWidget>("TechModForm")->close();
    DeleteClosed();
    auto* docks = game.Find<SpinBar>("DockScroll", 2);
    QTest::mousePress(docks, Qt::LeftButton, {}, QPoint(8, 5));
    docks->triggerAction(QAbstractSlider::SliderSingleStepSub); // as holding it does
    QTest::mouseRelease(docks, Qt::LeftButton, {}, QPoint(8, 5));
    EXPECT_EQ(game.state.Player(2).SpaceDocks, 3);

    game.Undo();
    EXPECT_EQ(game.state.Player(2).SpaceDocks, 1);
    game.Undo();
    EXPECT_EQ(game.Caption("PlayerGreenTech", 1) + game.Caption("PlayerRedTech", 1), "3030");
    game.Undo();
    EXPECT_EQ(game.Caption("PlayerName", 1), "Player 1");
    EXPECT_EQ(game.Back("PlayerName", 1), QColor(255, 128, 0));
    EXPECT_EQ(game.MenuTexts().first(), "[Undo]");
}

TEST(Steps, StartIsFinalAndALoadedGameIsNot) {
    Steps game;
    emit game.Find<QComboBox>("Race", 1)->activated(0);
    game.Start();
    game.Undo();
    EXPECT_TRUE(game.state.Started && game.state.Player(1).Race == Race::Altheran);
    const GameState before = game.state;
    game.Choose("LGame");
    emit game.Find<LoadForm>("LoadForm")->GameLoaded(GameOfTwentyPlanets());
    game.Find<LoadForm>("LoadForm")->close();
    DeleteClosed();
    EXPECT_FALSE(game.state.Started);
    EXPECT_EQ(game.MenuTexts().first(), "Undo Load Game");
    game.Activate();
    game.Undo();
    EXPECT_TRUE(game.state == before);
}

TEST(Steps, TheBoardShowsWhatIsSoAndKeepsItsOwner) {
    Steps game;
    game.Start();
    game.Click("InvasionPlayer", NeutralOwner);
    RandomPlay(game, 1).Drag(0, 3);
    EXPECT_EQ(game.Caption("InvasionPlanet", 0), "World 1");
    game.Click("InvasionPlayer", 3);
    EXPECT_EQ(game.Caption("InvasionPlanet", 0), "Quessin");
    game.Undo();
    EXPECT_EQ(game.Caption("InvasionPlanet", 0), "");
    EXPECT_EQ(game.state.View.BoardPlayer, 3);
    game.Redo();
    EXPECT_EQ(game.Caption("InvasionPlanet", 0), "Quessin");
}

TEST(Steps, NotesKeepTheirOwn) {
    Steps game;
    game.Click("Enviro", 1);
    game.Choose("Notes");
    QTest::keyClicks(game.Find<QPlainTextEdit>("Aant"), "tax");
    game.Undo();
    EXPECT_FALSE(game.state.Player(1).Enviro);
    EXPECT_EQ(game.state.NotesText, "tax");
    game.Redo();
    QTest::keyClick(game.Find<QPlainTextEdit>("Aant"), Qt::Key_Z, Qt::ControlModifier);
    EXPECT_EQ(game.state.NotesText, "");
    EXPECT_TRUE(game.state.Player(1).Enviro);
}

TEST(Steps, ARaceBoxPassesTheKeyOn) {
    Steps game;
    game.Click("Enviro", 1);
    auto* race = game.Find<QComboBox>("Race", 2);
    race->setFocus();
    QTest::keyClicks(race, "x");
    QTest::keyClick(race, Qt::Key_Z, Qt::ControlModifier);
    EXPECT_FALSE(game.state.Player(1).Enviro);
}

/// The game and its picture, both without what steps leave alone: how one looks at the game.
std::pair<Game, QImage> Seen(Steps& game) {
    game.state.View = {};
    game.window.ShowGame();
    return {game.state, game.window.centralWidget()->grab().toImage()};
}

TEST(Steps, UndoingAllAndRedoingAllGivesTheSameStatesAndPictures) {
    Steps game;
    RandomPlay play(game, 11);
    for (int round = 0; round < 4; ++round) {
        for (int step = 0; step < 100; ++step) {
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
            const auto again = Seen(game);
            ASSERT_TRUE(again.first == seen.back().first) << seen.size();
            ASSERT_EQ(again.second, seen.back().second) << seen.size();
        }
        EXPECT_EQ(game.MenuTexts().last(), "[Redo]");
    }
}

} // namespace
} // namespace ksm
