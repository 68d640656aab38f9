#include "controls/spin_bar.h"
#include "tests/window_test.h"

#include <QApplication>
#include <QWheelEvent>

namespace ksm {
namespace {

class SpinBarTest : public testing::Test {
protected:
    SpinBarTest() {
        bar.SetRange(0, 9, 5);
        window.show();
    }

    const QPoint down{8, 20};
    QWidget window;
    SpinBar bar{"Bar", QRect(0, 0, 17, 25), &window};
};

TEST_F(SpinBarTest, EveryPointOfAHalfStepsOnce) {
    for (const auto& [place, value] : {std::pair{QPoint(0, 1), 4}, std::pair{QPoint(16, 11), 4},
                                       std::pair{QPoint(0, 12), 6}, std::pair{QPoint(16, 24), 6}}) {
        bar.setValue(5);
        QTest::mouseClick(&bar, Qt::LeftButton, {}, place);
        EXPECT_EQ(bar.value(), value) << place.x() << ", " << place.y();
    }
    QTest::mouseClick(&bar, Qt::RightButton, {}, QPoint(8, 5));
    EXPECT_EQ(bar.value(), 6);
}

TEST_F(SpinBarTest, QuickClicksAllCountAsFarAsTheRange) {
    for (const int value : {7, 9, 9}) {
        QTest::mouseClick(&bar, Qt::LeftButton, {}, down);
        QTest::mouseDClick(&bar, Qt::LeftButton, {}, down); // what a second quick click sends
        QTest::mouseRelease(&bar, Qt::LeftButton, {}, down);
        EXPECT_EQ(bar.value(), value);
    }
}

TEST_F(SpinBarTest, OneStepForAnArrowKeyAndForAWheelNotchWithTheFocus) {
    const auto turn = [&](int angle) {
        QWheelEvent notch(QPointF(8, 8), QPointF(8, 8), {}, QPoint(0, angle), Qt::NoButton,
                          Qt::NoModifier, Qt::NoScrollPhase, false);
        QApplication::sendEvent(&bar, &notch);
    };
    turn(120);
    EXPECT_EQ(bar.value(), 5);
    window.activateWindow();
    bar.setFocus();
    ASSERT_TRUE(QTest::qWaitFor([&] { return bar.hasFocus(); }));
    for (const auto& [angle, key, value] :
         {std::tuple{120, Qt::Key_Up, 3}, std::tuple{-120, Qt::Key_Down, 5}}) {
        turn(angle);
        QTest::keyClick(&bar, key);
        EXPECT_EQ(bar.value(), value);
    }
}

TEST_F(SpinBarTest, AHeldButtonRepeatsUntilThePointerLeavesIt) {
    bar.SetRange(0, 1000, 0);
    QTest::mousePress(&bar, Qt::LeftButton, {}, down);
    EXPECT_TRUE(QTest::qWaitFor([&] { return bar.value() >= 3; }, 5000));
    QTest::mouseMove(&bar, QPoint(8, 5));
    const int left = bar.value();
    QTest::qWait(300);
    EXPECT_EQ(bar.value(), left);
}

TEST_F(SpinBarTest, RestsWhenSomethingElseGotTheReleaseOfTheButton) {
    QTest::mousePress(&bar, Qt::LeftButton, {}, down);
    QTest::mouseRelease(&window, Qt::LeftButton);
    QTest::qWait(700);
    EXPECT_EQ(bar.value(), 6);
}

} // namespace
} // namespace ksm
