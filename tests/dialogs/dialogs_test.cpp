#include "dialogs/about_form.h"
#include "dialogs/color_select_form.h"
#include "dialogs/note_form.h"
#include "dialogs/tech_form.h"
#include "model/game_state.h"
#include "tests/window_test.h"

#include <QClipboard>
#include <QDropEvent>
#include <QLabel>
#include <QMimeData>
#include <QPlainTextEdit>

namespace ksm {
namespace {

struct Dialogs : testing::Test {
    QWidget owner;
};

TEST_F(Dialogs, AddressesCannotBeChanged) {
    const QPointer form(new AboutForm(&owner));
    form->show();
    for (QLineEdit* box : form->findChildren<QLineEdit*>()) {
        const QString address = box->text();
        QGuiApplication::clipboard()->setText("x");
        box->selectAll();
        for (const auto key : {QKeySequence::Cut, QKeySequence::Paste, QKeySequence::Undo}) {
            QTest::keySequence(box, key);
        }
        QTest::keyClicks(box, "x");
        QMimeData dragged;
        dragged.setText("x");
        QDropEvent drop({5, 5}, Qt::CopyAction, &dragged, Qt::LeftButton, Qt::NoModifier);
        QApplication::sendEvent(box, &drop);
        EXPECT_EQ(box->text(), address);
        QTest::keySequence(box, QKeySequence::Copy);
        EXPECT_EQ(QGuiApplication::clipboard()->text(), address);
    }
    QTest::mouseClick(form->findChild<QPushButton*>("Command1"), Qt::LeftButton);
    EXPECT_TRUE(IsUnloaded(form));
}

TEST_F(Dialogs, EveryChangeOfTheNotesIsKeptAtOnceAndOutlivesTheWindow) {
    GameState game;
    for (const char* before : {"", "tax\né€\t😀"}) {
        NoteForm form(game, &owner);
        auto& box = *form.findChild<QPlainTextEdit*>("Aant");
        EXPECT_EQ(box.toPlainText(), before);
        box.clear();
        QTest::keyClicks(&box, "tax");
        EXPECT_EQ(game.NotesText, "tax");
        box.insertPlainText(QString::fromUtf8("\né€\t😀"));
        EXPECT_EQ(game.NotesText, "tax\né€\t😀");
    }
}

TEST_F(Dialogs, ATabOrALineFeedInANameBecomesABlank) {
    GameState game;
    game.View.EditedPlayer = 3;
    ColorSelectForm form(game, &owner);
    const QSignalSpy changes(&form, &ColorSelectForm::Changed);
    for (const char* name : {"NameEntry", "ShortNameEntry"}) {
        QGuiApplication::clipboard()->setText(QString::fromUtf8("a\tb\nc\u2028d\u00A0e\u200D"));
        auto& box = *form.findChild<QLineEdit*>(name);
        box.selectAll();
        box.paste();
    }
    EXPECT_EQ(changes.count(), 2) << "the name brings its short name along";
    EXPECT_EQ(game.Game.Player(3).Name, "a b c d\u00A0e\u200D");
    EXPECT_EQ(game.Game.Player(3).ShortName, "a b c d\u00A0e\u200D");
}

TEST_F(Dialogs, PastingNothingIntoTheNotesLeavesThemAsTheyAre) {
    GameState game;
    game.NotesText = "tax";
    const NoteForm form(game, &owner);
    // As an empty clipboard under X11 does: data without a format.
    QGuiApplication::clipboard()->setMimeData(new QMimeData);
    form.findChild<QPlainTextEdit*>("Aant")->paste();
    EXPECT_EQ(game.NotesText, "tax");
}

TEST_F(Dialogs, ABoxOfAChartTellsWhatItNeeds) {
    const TechForm form("TechForm", StandardChart(), &owner);
    const auto told = [&](const char* box) {
        return form.findChild<QLabel*>(box)->accessibleName();
    };
    EXPECT_EQ(told("Label1(2)"),
              "MICRO TECHNOLOGY, yellow, needs ENVIRO COMPENSATOR or PELLAM TOOLS");
    EXPECT_EQ(told("Label1(3)"), "ORBITAL FOUNDRY, yellow, needs MICRO TECHNOLOGY and PHASE DRIVE");
}

TEST_F(Dialogs, TextsOfAChartFitAndAClickAnywhereButOnTheLegendUnloadsIt) {
    for (const char* name : {"Label1(0)", "Label1(23)", "Label2", "TechForm2"}) {
        const QPointer form(new TechForm("TechForm2", ExpansionChart(), &owner));
        form->open();
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
}

} // namespace
} // namespace ksm
