#include "app/fixed_size_guard.h"
#include "tests/game_window.h"

#include <QWindow>

namespace ksm {
namespace {

TEST(FixedSizeGuard, AWindowFillsWhatTheDesktopGivesItAndReturns) {
    FixedSizeGuard guard;
    QCoreApplication::instance()->installEventFilter(&guard);
    GameWindow game;
    ASSERT_TRUE(QTest::qWaitForWindowExposed(&game.window));
    QWindow* window = game.window.windowHandle();
    const QSize size = game.window.size();
    const auto returns = [&] {
        return QTest::qWaitFor([&] {
            return window->windowStates() == Qt::WindowNoState && window->size() == size &&
                   game.window.size() == size;
        });
    };

    const QSize given = size + QSize(200, 100);
    window->resize(given);
    QCoreApplication::processEvents();
    EXPECT_TRUE(returns()) << "nothing is seen of an edge that is dragged";
    for (const auto state : {Qt::WindowMaximized, Qt::WindowFullScreen}) {
        window->setWindowStates(state);
        QWindowStateChangeEvent answer(Qt::WindowNoState);
        QCoreApplication::sendEvent(window, &answer);
        QResizeEvent order(given, size);
        QCoreApplication::sendEvent(window, &order);
        EXPECT_NE(game.window.size(), size) << "as Wayland demands";
        EXPECT_TRUE(returns());
    }
}

} // namespace
} // namespace ksm
