#include "app/fixed_size_guard.h"
#include "tests/game_window.h"

#include <QWindow>

namespace ksm {
namespace {

TEST(FixedSizeGuard, AMaximisedWindowMayFillTheScreenAndReturns) {
    FixedSizeGuard guard;
    QCoreApplication::instance()->installEventFilter(&guard);
    const GameWindow game;
    QWindow* window = game.window.windowHandle();
    const QSize size = window->size();
    QSize most;
    QObject::connect(window, &QWindow::windowStateChanged, window,
                     [&] { most = most.expandedTo(window->maximumSize()); });

    for (const auto state : {Qt::WindowMaximized, Qt::WindowFullScreen}) {
        window->setWindowStates(state);
        EXPECT_GT(most.width(), window->screen()->size().width()) << "as Wayland demands";
        EXPECT_TRUE(QTest::qWaitFor([&] { return window->windowStates() == Qt::WindowNoState; }));
    }
    EXPECT_EQ(window->minimumSize(), size);
    EXPECT_EQ(window->maximumSize(), size);
}

} // namespace
} // namespace ksm
