#include "controls/spin_bar.h"
#include "dialogs/about_form.h"
#include "dialogs/dice_form.h"
#include "dialogs/note_form.h"
#include "dialogs/tech_form.h"
#include "model/game_state.h"
#include "tests/window_test.h"

#include <QLabel>
#include <QPlainTextEdit>

#include <functional>

namespace ksm {
namespace {

struct Dialogs : testing::Test {
    Dialogs() {
        owner.setGeometry(100, 80, 640, 466);
        owner.show();
    }

    QWidget owner;
};

TEST_F(Dialogs, AboutStandsInTheMiddleWithAddressesThatCannotBeChanged) {
    const QPointer form(new AboutForm(&owner));
    form->show();
    EXPECT_EQ(form->frameGeometry().center(), owner.frameGeometry().center());
    for (QLineEdit* box : form->findChildren<QLineEdit*>()) {
        const QString address = box->text();
        QTest::keyClicks(box, "x");
        QTest::keyClick(box, Qt::Key_A, Qt::ControlModifier);
        QTest::keyClick(box, Qt::Key_X, Qt::ControlModifier);
        EXPECT_EQ(box->text(), address);
    }
    QTest::mouseClick(form->findChild<QPushButton*>("Command1"), Qt::LeftButton);
    EXPECT_TRUE(IsUnloaded(form));
}

TEST_F(Dialogs, AsManyDiceAsCountedAreRolledBetweenOneAndSeven) {
    const QPointer form(new DiceForm(&owner));
    form->show();
    EXPECT_EQ(form->pos(), owner.pos() + QPoint(560, 33));
    QTest::keyClick(form, Qt::Key_Escape);
    EXPECT_TRUE(form->isVisible());
    auto& scroll = *form->findChild<SpinBar*>("Scroll");
    const auto turn = [&](int y) { QTest::mouseClick(&scroll, Qt::LeftButton, {}, QPoint(8, y)); };
    const std::pair<std::function<void()>, int> rows[]{
        {[&] { turn(20); }, 1},
        {[&] { turn(5); }, 2}, // the refused step is not counted
        {[&] { scroll.setValue(7); }, 1},
        {[&] { QTest::keyClick(&scroll, Qt::Key_Home); }, 7},
        {[&] { turn(5); }, 7},
        {[&] { scroll.setValue(scroll.maximum()); }, 1},
        {[&] { scroll.setValue(3); }, 4}};
    for (const auto& [move, count] : rows) {
        move();
        EXPECT_EQ(form->findChild<CaptionLabel*>("Coun")->Caption(), QString::number(count));
        QTest::mouseClick(form->findChild<QPushButton*>("Command1"), Qt::LeftButton);
        int shown = 0;
        for (int i = 0; i < MaxDice; ++i) {
            const QString die = form->findChild<CaptionLabel*>(ElementName("Label1", i))->Caption();
            shown += die.isEmpty() ? 0 : 1;
            EXPECT_TRUE(die.isEmpty() || (die.toInt() >= 1 && die.toInt() <= 10));
        }
        EXPECT_EQ(shown, count) << "nothing of the roll before";
    }
}

TEST_F(Dialogs, EveryChangeOfTheNotesIsKeptAtOnceAndOutlivesTheWindow) {
    GameState game;
    for (const char* before : {"", "tax\né€\t😀"}) {
        const QPointer form(new NoteForm(game, &owner));
        form->show();
        EXPECT_EQ(form->pos(), owner.pos() + QPoint(560, 220));
        auto& box = *form->findChild<QPlainTextEdit*>("Aant");
        EXPECT_EQ(box.toPlainText(), before);
        box.clear();
        QTest::keyClicks(&box, "tax");
        EXPECT_EQ(game.NotesText, "tax");
        box.insertPlainText(QString::fromUtf8("\né€\t😀"));
        EXPECT_EQ(game.NotesText, "tax\né€\t😀");
        form->close();
        EXPECT_TRUE(IsUnloaded(form));
    }
}

TEST_F(Dialogs, TextsOfAChartFitAndAClickAnywhereButOnTheLegendUnloadsIt) {
    for (const char* name : {"Label1(0)", "Label1(23)", "Label2", "TechForm2"}) {
        const QPointer form(new TechForm2(&owner));
        form->open();
        EXPECT_EQ(form->pos(), owner.pos());
        for (const QLabel* label : form->findChildren<QLabel*>()) {
            EXPECT_EQ(label->size().expandedTo(label->sizeHint()), label->size())
                << label->text().toStdString();
        }
        auto* label = form->findChild<QLabel*>(name);
        QWidget& place = label ? static_cast<QWidget&>(*label) : *form;
        for (const auto button : {Qt::RightButton, Qt::LeftButton}) {
            QTest::mouseClick(&place, button, {}, QPoint(12, 12));
            EXPECT_EQ(IsUnloaded(form), button == Qt::LeftButton && name != QString("Label2"))
                << name;
        }
    }
    const QPointer form(new TechForm(&owner));
    form->open();
    QTest::keyClick(form, Qt::Key_Escape);
    EXPECT_TRUE(IsUnloaded(form));
}

} // namespace
} // namespace ksm
