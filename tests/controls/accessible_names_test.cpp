#include "controls/accessible_names.h"
#include "controls/choice_box.h"
#include "controls/spin_bar.h"
#include "tests/window_test.h"

#include <QAccessible>
#include <QAccessibleActionInterface>

namespace ksm {
namespace {

struct AccessibleNames : testing::Test {
    AccessibleNames() {
        InstallAccessibleNames();
        window.show();
    }

    static QAccessibleInterface* Of(QWidget* control) {
        return QAccessible::queryAccessibleInterface(control);
    }
    static std::string Name(QWidget* control) {
        return Of(control)->text(QAccessible::Name).toStdString();
    }

    QWidget window;
};

TEST_F(AccessibleNames, AFigureIsAnnouncedBehindItsHeading) {
    CaptionLabel label("L", QRect(0, 0, 60, 17), &window);
    label.SetHeading("Influence, Player 3");
    EXPECT_EQ(Name(&label), "Influence, Player 3");
    label.SetCaption("7");
    EXPECT_EQ(Name(&label), "Influence, Player 3: 7");
}

TEST_F(AccessibleNames, ALabelThatBecomesClickableIsAButton) {
    CaptionLabel label("L", QRect(0, 0, 60, 17), &window);
    QSignalSpy clicks(&label, &CaptionLabel::Clicked);
    EXPECT_EQ(Of(&label)->role(), QAccessible::StaticText);
    label.MakeClickable();
    EXPECT_EQ(Of(&label)->role(), QAccessible::Button);
    const auto press = [&] {
        Of(&label)->actionInterface()->doAction(QAccessibleActionInterface::pressAction());
    };
    press();
    EXPECT_EQ(clicks.count(), 0) << "what is not shown cannot be pressed";
    label.show();
    press();
    EXPECT_EQ(clicks.count(), 1);
    label.setEnabled(false);
    press();
    EXPECT_EQ(clicks.count(), 1);
}

TEST_F(AccessibleNames, ABarSaysAndTakesItsCountRatherThanItsPosition) {
    SpinBar docks("DockScroll(3)", QRect(0, 0, 17, 25), &window);
    docks.SetRange(0, 10, 9);
    docks.SetCount({.AtZero = 10, .Least = 0, .Most = 10});
    docks.show();
    QAccessibleValueInterface* value = Of(&docks)->valueInterface();
    EXPECT_EQ(value->currentValue(), 1);
    EXPECT_EQ(value->minimumValue(), 0);
    EXPECT_EQ(value->maximumValue(), 10);
    value->setCurrentValue(4);
    EXPECT_EQ(docks.value(), 6);
}

TEST_F(AccessibleNames, ADropDownListHasANameBesideItsText) {
    ChoiceBox box("Race(3)", "Race", {"Altheran", "Quorvi"}, &window);
    box.SetHeading("Race, Player 3");
    box.ShowChoice(1);
    EXPECT_EQ(Name(&box), "Race, Player 3");
    EXPECT_EQ(Of(&box)->text(QAccessible::Value), "Quorvi");
}

} // namespace
} // namespace ksm
