#include "controls/input_guard.h"
#include "tests/window_test.h"

#include <QApplication>

namespace ksm {
namespace {

struct InputGuardTest : testing::Test {
    InputGuardTest() {
        qApp->installEventFilter(&guard);
        window.show();
        other.show();
    }

    static void Key(QWidget* control, QEvent::Type type, quint64 time, bool repeated = false) {
        QKeyEvent key(type, Qt::Key_X, Qt::NoModifier, "x", repeated);
        key.setTimestamp(time);
        QApplication::sendEvent(control, &key);
    }
    static void Mouse(QWidget* control, QEvent::Type type, quint64 time) {
        QMouseEvent event(type, QPointF(5, 5), control->mapToGlobal(QPointF(5, 5)), Qt::LeftButton,
                          Qt::LeftButton, Qt::NoModifier);
        event.setTimestamp(time);
        QApplication::sendEvent(control, &event);
    }

    InputGuard guard;
    QWidget window;
    QLineEdit first{&window};
    QLineEdit second{&window};
    QLineEdit other;
};

TEST_F(InputGuardTest, AHeldKeyStaysInItsWindowUntilItIsPressedAnew) {
    Key(&first, QEvent::KeyPress, 10);
    Key(&first, QEvent::KeyPress, 20, true);
    Key(&second, QEvent::KeyPress, 30, true);
    EXPECT_EQ(first.text() + '|' + second.text(), "xx|x") << "within a window a key repeats";
    Key(&other, QEvent::KeyPress, 40, true);
    Key(&other, QEvent::KeyRelease, 50);
    Key(&other, QEvent::KeyPress, 50);
    EXPECT_EQ(other.text(), "") << "a repetition that is not known as one";
    Key(&other, QEvent::KeyRelease, 60);
    Key(&other, QEvent::KeyPress, 70);
    EXPECT_EQ(other.text(), "x");
}

TEST_F(InputGuardTest, ADoubleClickCountsOnlyWhereBothHalvesFell) {
    CaptionLabel label("L", QRect(0, 50, 60, 17), &window);
    label.MakeClickable();
    label.show();
    QSignalSpy clicks(&label, &CaptionLabel::Clicked);
    const auto doubleClick = [&](QWidget* begun) {
        Mouse(begun, QEvent::MouseButtonPress, 100);
        Mouse(begun, QEvent::MouseButtonRelease, 110);
        Mouse(&label, QEvent::MouseButtonDblClick, 120);
        Mouse(&label, QEvent::MouseButtonRelease, 130);
    };
    doubleClick(&first);
    EXPECT_EQ(clicks.count(), 0);
    auto* gone = new QWidget;
    doubleClick(gone);
    delete gone;
    Mouse(&label, QEvent::MouseButtonDblClick, 140);
    Mouse(&label, QEvent::MouseButtonRelease, 150);
    EXPECT_EQ(clicks.count(), 0);
    Mouse(&label, QEvent::MouseButtonPress, 200);
    Mouse(&label, QEvent::MouseButtonRelease, 210);
    Mouse(&label, QEvent::MouseButtonDblClick, 220);
    Mouse(&label, QEvent::MouseButtonRelease, 230);
    EXPECT_EQ(clicks.count(), 2);
}

} // namespace
} // namespace ksm
