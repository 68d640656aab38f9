// What was done in the main window, taken back and made again.

#include "tests/game_window.h"

#include <QMenu>

namespace ksm {
namespace {

/// What the context menu would undo.
QString UndoText(GameWindow& game) {
    game.MoveOver(game.Find("PlayerName", 1)); // no menu comes again where the pointer rests
    QTest::mouseClick(game.window.windowHandle(), Qt::RightButton, {}, QPoint(5, 300));
    auto* menu = game.Find<QMenu>("Steps");
    const QString text = menu->actions().first()->text().section('\t', 0, 0);
    menu->close();
    DeleteClosed();
    game.Activate(); // as a window manager does
    return text;
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
        EXPECT_EQ(UndoText(game), QString("Undo ") + undo);
        game.Undo();
    }
    EXPECT_EQ(UndoText(game), "Undo");
}

} // namespace
} // namespace ksm
