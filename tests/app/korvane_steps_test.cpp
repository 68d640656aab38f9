#include "tests/game_window.h"

#include <QMenu>

#include <functional>

namespace ksm {
namespace {

TEST(Steps, AHeldArrowOrKeyIsOneStep) {
    GameWindow game;
    game.Activate();
    auto* docks = game.Find<QScrollBar>("DockScroll", 2);
    auto* menu = game.Find<QMenu>("MenuLaws");
    QWindow* window = game.window.windowHandle();
    const auto release = [&](QPoint place) {
        QTest::mouseRelease(window, Qt::LeftButton, {}, place);
    };
    const std::tuple<int, const char*, std::function<void()>> rows[]{
        {5, "released", [&] { release(PlaceIn(docks, {8, 5})); }},
        {20, "left", [&] { game.MoveOver(game.Owner(1)); }},
        {5, "below a menu", [&] { menu->popup({}); }}};
    std::vector<int> reached{docks->value()};
    for (const auto& [half, what, end] : rows) {
        QTest::mousePress(window, Qt::LeftButton, {}, PlaceIn(docks, {8, half}));
        const auto repeats = [&] { return std::abs(docks->value() - reached.back()) >= 2; };
        EXPECT_TRUE(QTest::qWaitFor(repeats)) << "while held";
        end();
        reached.push_back(docks->value());
        QTest::qWait(200);
        EXPECT_EQ(docks->value(), reached.back()) << what;
        menu->close();
        release(Centre(game.Owner(1)));
    }
    game.Activate();
    docks->setFocus();
    QTest::keyPress(docks, Qt::Key_Up);
    docks->clearFocus(); // to a window that opens and closes meanwhile
    docks->setFocus();
    QKeyEvent repeated(QEvent::KeyPress, Qt::Key_Up, {}, {}, true);
    QApplication::sendEvent(docks, &repeated);
    QTest::keyRelease(docks, Qt::Key_Up);
    reached.push_back(docks->value());
    QTest::keyClick(docks, Qt::Key_Up);
    for (; !reached.empty(); reached.pop_back()) {
        game.Undo();
        EXPECT_EQ(docks->value(), reached.back());
    }
}

} // namespace
} // namespace ksm
