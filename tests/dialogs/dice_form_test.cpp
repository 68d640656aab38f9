#include "controls/spin_bar.h"
#include "dialogs/dice_form.h"
#include "tests/window_test.h"

namespace ksm {
namespace {

class DiceFormTest : public testing::Test {
protected:
    DiceFormTest() {
        owner.move(100, 50);
        form = new DiceForm(&owner);
        form->show();
    }

    QString Count() const { return form->findChild<CaptionLabel*>("Coun")->Caption(); }
    SpinBar& Scroll() const { return *form->findChild<SpinBar*>("Scroll"); }
    /// The values shown at the places that are not empty.
    QList<int> Shown() const {
        QList<int> values;
        for (int i = 0; i < MaxDice; ++i) {
            const auto* place = form->findChild<CaptionLabel*>(ElementName("Label1", i));
            EXPECT_EQ(place->ShownText(), place->Caption()) << "a figure that is cut off";
            if (!place->Caption().isEmpty()) {
                values << place->Caption().toInt();
                EXPECT_TRUE(values.last() >= 1 && values.last() <= 10) << values.last();
            }
        }
        return values;
    }

    QWidget owner;
    QPointer<DiceForm> form;
};

TEST_F(DiceFormTest, OpensBesideItsOwnerWithOneDieAndNothingRolled) {
    EXPECT_EQ(form->pos(), QPoint(660, 83));
    EXPECT_EQ(Count(), "1");
    EXPECT_EQ(Scroll().value(), 6);
    EXPECT_TRUE(Shown().isEmpty());
    QTest::keyClick(form, Qt::Key_Escape);
    EXPECT_TRUE(form->isVisible());
}

TEST_F(DiceFormTest, TheCountStaysBetweenOneAndSevenHoweverTheSpinnerIsMoved) {
    const QPoint up(8, 5), down(8, 20);
    QTest::mouseClick(&Scroll(), Qt::LeftButton, {}, down);
    EXPECT_EQ(Count(), "1");
    QTest::mouseClick(&Scroll(), Qt::LeftButton, {}, up);
    EXPECT_EQ(Count(), "2") << "the refused step is not counted";
    for (const int position : {7, 8, 5000, Scroll().maximum()}) {
        Scroll().setValue(3);
        Scroll().setValue(position);
        EXPECT_EQ(Count(), "1") << position;
        EXPECT_EQ(Scroll().value(), 6) << position;
    }
    QTest::keyClick(&Scroll(), Qt::Key_Home);
    EXPECT_EQ(Count(), "7");
    QTest::mouseClick(&Scroll(), Qt::LeftButton, {}, up);
    EXPECT_EQ(Count(), "7");
    QTest::keyClick(&Scroll(), Qt::Key_End);
    EXPECT_EQ(Count(), "1");
}

TEST_F(DiceFormTest, ARollShowsAsManyDiceAsCountedAndNothingOfTheRollBefore) {
    for (const int dice : {7, 1, 4}) {
        Scroll().setValue(7 - dice);
        for (int i = 0; i < 20; ++i) {
            QTest::mouseClick(form->findChild<QPushButton*>("Command1"), Qt::LeftButton);
            EXPECT_EQ(Shown().size(), dice);
        }
    }
}

} // namespace
} // namespace ksm
