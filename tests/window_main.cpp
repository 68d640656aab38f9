// Runs the window tests on a platform without a screen.

#include "controls/look.h"

#include <QApplication>

#include <gtest/gtest.h>

int main(int argc, char* argv[]) {
    testing::InitGoogleTest(&argc, argv);
    qputenv("QT_QPA_PLATFORM", "offscreen");
    QApplication application(argc, argv);
    ksm::ApplyLook();
    return RUN_ALL_TESTS();
}
