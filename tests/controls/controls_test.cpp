#include "controls/accessible_names.h"
#include "controls/choice_box.h"
#include "controls/fitting_font.h"
#include "controls/input_guard.h"
#include "controls/message_label.h"
#include "controls/spin_bar.h"
#include "tests/window_test.h"

#include <QAccessible>
#include <QAccessibleActionInterface>
#include <QHelpEvent>
#include <QToolTip>

namespace ksm {
namespace {

/// What is told where the mouse rests on it.
QString Tip(QWidget& control) {
    QHelpEvent rest(QEvent::ToolTip, QPoint(5, 5), control.mapToGlobal(QPoint(5, 5)));
    QApplication::sendEvent(&control, &rest);
    return AsRead(QToolTip::text());
}

TEST(Labels, TellAllOfWhatIsTooWideOrSmallAsTyped) {
    QWidget window;
    CaptionLabel label("L", QRect(0, 0, 60, 17), &window);
    label.SetExplanation([] { return "1 < 2"; });
    MessageLabel message("M", QRect(0, 0, 73, 57), &window);
    const QString large = "<b>Anna</b> the Second and many others, and all that they have done";
    for (const QString& text : {QString("<b>"), large}) {
        label.SetCaption(text);
        message.SetCaption(text);
        EXPECT_EQ(Tip(message), text == large ? large : QString());
        EXPECT_EQ(Tip(label), text == large ? large + "\n1 < 2" : "1 < 2");
    }
}

TEST(FittingFont, StaysBoldAndSlanted) {
    QFont font = BoldFont();
    font.setItalic(true);
    const QFont fitting = FittingFont(font, 8, "far too long for so small a place", 20);
    EXPECT_TRUE(fitting.bold() && fitting.italic() && fitting.pixelSize() == 8);
}

TEST(SpinBar, StepsForEachHalfOfADoubleClick) {
    QWidget window;
    SpinBar bar("Bar", QRect(0, 0, 17, 25), &window);
    bar.SetRange(0, 9, 5);
    window.show();
    QTest::mouseClick(window.windowHandle(), Qt::RightButton, {}, {8, 20});
    QTest::mouseDClick(window.windowHandle(), Qt::LeftButton, {}, {8, 20});
    EXPECT_EQ(bar.value(), 7);
}

struct InputGuards : testing::Test {
    InputGuards() {
        qApp->installEventFilter(&guard);
        window.show();
        other.show();
    }

    /// Whether somebody took the key; what is kept from a control counts as taken.
    static bool Key(QWidget* control, QEvent::Type type, quint64 time, bool repeated = false) {
        QKeyEvent key(type, Qt::Key_X, Qt::NoModifier, "x", repeated);
        key.setTimestamp(time);
        QApplication::sendEvent(control, &key);
        return key.isAccepted();
    }
    void Click(QWidget* control, QEvent::Type press) {
        for (const auto type : {press, QEvent::MouseButtonRelease}) {
            QMouseEvent event(type, QPointF(5, 5), control->mapToGlobal(QPointF(5, 5)),
                              Qt::LeftButton, Qt::LeftButton, Qt::NoModifier);
            event.setTimestamp(++now);
            QApplication::sendEvent(control, &event);
        }
    }

    quint64 now = 100;
    InputGuard guard;
    QWidget window;
    QLineEdit first{&window}, second{&window}, other;
};

TEST_F(InputGuards, AHeldKeyStaysInItsWindowUntilItIsPressedAnew) {
    Key(&first, QEvent::KeyPress, 10);
    Key(&other, QEvent::KeyPress, 15, true); // which the key opened
    Key(&first, QEvent::KeyPress, 20, true);
    Key(&second, QEvent::KeyPress, 30, true);
    EXPECT_EQ(first.text() + '|' + second.text(), "xx|x") << "within a window a key repeats";
    Key(&other, QEvent::KeyPress, 40, true);
    Key(&other, QEvent::KeyRelease, 50);
    Key(&other, QEvent::KeyPress, 50);
    EXPECT_EQ(other.text(), "") << "a repetition that is not known as one";
    EXPECT_FALSE(Key(&window, QEvent::KeyRelease, 60)) << "a release reaches everybody";
    Key(&other, QEvent::KeyPress, 70);
    EXPECT_EQ(other.text(), "x");
}

TEST_F(InputGuards, ADoubleClickCountsOnlyWhereBothHalvesFell) {
    CaptionLabel label("L", QRect(0, 50, 60, 17), &window);
    label.MakeClickable();
    label.show();
    const QSignalSpy clicks(&label, &CaptionLabel::Clicked);
    auto gone = std::make_unique<QWidget>();
    for (const auto& [half, count] :
         {std::pair<QWidget*, int>{&first, 0}, {gone.get(), 0}, {&window, 0}, {&label, 2}}) {
        Click(half, QEvent::MouseButtonPress);
        half == gone.get() ? gone.reset() : void();
        Click(&label, QEvent::MouseButtonDblClick);
        EXPECT_EQ(clicks.count(), count);
    }
}

TEST(AccessibleNames, SayWhatAControlIsAndDoWhatItDoes) {
    InstallAccessibleNames();
    const auto of = [](QWidget* control) { return QAccessible::queryAccessibleInterface(control); };
    QWidget window;
    CaptionLabel label("L", QRect(0, 0, 60, 17), &window);
    EXPECT_EQ(of(&label)->role(), QAccessible::StaticText);
    ChoiceBox box("B", "Race", {"a", "b"}, &window);
    for (int child = of(&box)->childCount() - 1; child >= 0; --child) {
        EXPECT_EQ(of(&box)->indexOfChild(of(&box)->child(child)), child);
    }
    const QSignalSpy clicks(&label, &CaptionLabel::Clicked);
    label.MakeClickable();
    EXPECT_EQ(of(&label)->role(), QAccessible::Button);
    for (const auto& [isShown, isEnabled, pressed] :
         {std::tuple{false, true, 0}, std::tuple{true, true, 1}, std::tuple{true, false, 1}}) {
        window.setVisible(isShown);
        label.setEnabled(isEnabled);
        of(&label)->actionInterface()->doAction(QAccessibleActionInterface::pressAction());
        EXPECT_EQ(clicks.count(), pressed) << "only what is shown and enabled can be pressed";
        EXPECT_EQ(of(&label)->actionInterface()->actionNames().contains("Press"),
                  isShown && isEnabled);
    }
}

} // namespace
} // namespace ksm
