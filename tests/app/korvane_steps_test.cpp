// What was done in the main window, taken back and made again.

#include "tests/game_window.h"

#include <QMenu>

namespace ksm {
namespace {

/// The context menu, opened by a right click on the background; it goes when it is closed.
QMenu* ContextMenu(const GameWindow& game) {
    DeleteClosed();
    game.MoveOver(game.Find("PlayerName", 1)); // no menu comes again where the pointer rests
    QTest::mouseClick(game.window.windowHandle(), Qt::RightButton, {}, QPoint(5, 300));
    return game.Find<QMenu>("Steps");
}

/// Texts of a menu without the keys; greyed ones in brackets, checked ones with a star.
QStringList Texts(const QMenu* menu) {
    QStringList texts;
    for (const QAction* item : menu->actions()) {
        const QString text = item->text().section('\t', 0, 0) + (item->isChecked() ? "*" : "");
        texts << (item->isEnabled() ? text : '[' + text + ']');
    }
    return texts;
}

/// "Undo ..." and "Redo ...".
QStringList MenuTexts(GameWindow& game) {
    QMenu* menu = ContextMenu(game);
    const QStringList texts = Texts(menu).first(2);
    menu->close();
    DeleteClosed();
    game.Activate(); // as a window manager does
    return texts;
}

TEST(Steps, AreTakenBackAndMadeAgainByKeyAndSaidInTheContextMenu) {
    GameState start = GameOfTwentyPlanets();
    start.Game.Player(3).Name = "Tom && Jerry";
    GameWindow game(start);
    game.Activate();
    game.Click("Enviro", 3);
    game.Move("DockScroll(3)", 0);
    EXPECT_EQ(MenuTexts(game), QStringList({"Undo Space Docks, Tom &&&& Jerry", "[Redo]"}));
    game.Undo();
    game.Undo();
    EXPECT_EQ(MenuTexts(game), QStringList({"[Undo]", "Redo Enviro Comp., Tom &&&& Jerry"}));
    game.Redo();
    game.Key(Qt::Key_Z, Qt::ControlModifier | Qt::ShiftModifier);
    EXPECT_EQ(game.Caption("PlayerInfluence", 3), "10");
    for (const char* control :
         {"AddTAbutton", "TradePlayer(3)", "TradePlayer(5)", "RemoveTAButton"}) {
        game.Click(control);
    }
    EXPECT_EQ(MenuTexts(game).first(), "Undo Remove");
}

TEST(Steps, TheLastTenAreListedAndTheGameReturnsToTheOneThatIsChosen) {
    GameWindow game;
    game.Activate();
    for (int docks = 2; docks <= 10; ++docks) {
        game.Move("DockScroll(1)", 10 - docks);
    }
    game.Choose("TFree");
    game.Choose("MenuLabour");
    QMenu* menu = ContextMenu(game);
    const QMenu* list = menu->actions().at(2)->menu();
    EXPECT_EQ(list->title(), "Take Back To");
    EXPECT_EQ(list->actions().size(), 10);
    EXPECT_EQ(Texts(list).first(2), QStringList({"Labour Union*", "Free Trade"}));
    list->actions().at(3)->trigger();
    menu->close();
    game.Activate();
    EXPECT_EQ(game.state.Game.Player(1).SpaceDocks, 9);
    EXPECT_FALSE(game.state.Game.Laws.FreeTrade || game.state.Game.Laws.LabourUnion);
}

TEST(Steps, ADialogOrAHeldArrowOrKeyIsOneStep) {
    GameWindow game;
    game.Activate();
    game.Click("PlayerName", 1);
    QTest::keyClicks(game.Find<QLineEdit>("NameEntry"), "Ada");
    game.Close("ColorSelectForm");
    game.Choose("MenuTechMod");
    game.Move("VScroll1", 2, 5);
    game.Move("VScroll1", 0, 5);
    game.Close("TechModForm");
    game.Activate();
    auto* docks = game.Find<QScrollBar>("DockScroll", 2);
    QWindow* window = game.window.windowHandle();
    for (const bool released : {true, false}) {
        const int before = docks->value();
        QTest::mousePress(window, Qt::LeftButton, {}, PlaceIn(docks, {8, 5}));
        EXPECT_TRUE(QTest::qWaitFor([&] { return docks->value() <= before - 2; })) << "while held";
        released ? QTest::mouseRelease(window, Qt::LeftButton, {}, PlaceIn(docks, {8, 5}))
                 : game.MoveOver(game.Owner(1));
        const int reached = docks->value();
        QTest::qWait(200);
        EXPECT_EQ(docks->value(), reached) << "rests, also beside the arrow";
    }
    QTest::mouseRelease(window, Qt::LeftButton, {}, Centre(game.Owner(1)));
    docks->setFocus();
    QTest::keyPress(docks, Qt::Key_Up);
    docks->clearFocus(); // to a window that opens and closes meanwhile
    docks->setFocus();
    QKeyEvent repeated(QEvent::KeyPress, Qt::Key_Up, {}, {}, true);
    QApplication::sendEvent(docks, &repeated);
    QTest::keyRelease(docks, Qt::Key_Up);
    for (const char* undo : {"Space Docks, Player 2", "Space Docks, Player 2",
                             "Space Docks, Player 2", "Tech Modifiers", "name, Ada"}) {
        EXPECT_EQ(MenuTexts(game).first(), QString("Undo ") + undo);
        game.Undo();
    }
    EXPECT_EQ(MenuTexts(game).first(), "[Undo]");
}

} // namespace
} // namespace ksm
