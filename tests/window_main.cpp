// Runs the window tests on a platform without a screen, where nothing waits for anybody.

#include "tests/window_test.h"

int main(int argc, char* argv[]) {
    testing::InitGoogleTest(&argc, argv);
    qputenv("QT_QPA_PLATFORM", "offscreen");
    qunsetenv("QT_SCALE_FACTOR");
    QGuiApplication::setDesktopSettingsAware(false);
    QApplication application(argc, argv);
    ksm::ApplyLook();
    QApplication::setCursorFlashTime(0); // a caret looks the same at any moment
    const ksm::MessageBoxes unexpected(false);
    return RUN_ALL_TESTS();
}
