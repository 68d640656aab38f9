// The windows that the menus open, and what they do to the main window.

#include "tests/game_window.h"

namespace ksm {
namespace {

TEST(Windows, StandInTheirPlacesAndStayUntilTheyAreClosed) {
    const struct {
        const char *item, *form, *title, *focus;
        Qt::Key key;
        QPoint place;
        bool isModal;
    } rows[]{
        {"LGame", "LoadForm", "Load Game", "Loa", Qt::Key_F1, {3, 44}, true},
        {"SGame", "SaveForm", "Save Game", "Sav", Qt::Key_F2, {3, 44}, true},
        {"Stech", "TechForm", "Flowchart (Standard)", "", Qt::Key_F5, {0, 0}, true},
        {"HTech", "TechForm2", "Flowchart (Corrin's End)", "", Qt::Key_F6, {0, 0}, true},
        {"MenuTechMod", "TechModForm", "Tech cost modifiers", "", {}, {204, 70}, true},
        {"About", "AboutForm", "About Korvane Astrell Manager", "Command1", {}, {142, 79}, true},
        {"Notes", "NoteForm", "Notes", "Aant", {}, {560, 220}, false},
        {"Dice", "DiceForm", "Dice Roller", "", {}, {560, 33}, false}};
    for (const auto& row : rows) {
        SCOPED_TRACE(row.form);
        GameWindow game;
        EXPECT_EQ(game.window.geometry().center(), game.window.screen()->geometry().center());
        game.Choose(row.item);
        const QPointer form(game.Find<QWidget>(row.form));
        EXPECT_TRUE(form->windowTitle().endsWith(row.title));
        EXPECT_EQ(form->pos() - game.window.pos(), row.place);
        EXPECT_TRUE(form->isVisible() && form->isModal() == row.isModal);
        EXPECT_EQ(form->focusWidget() ? form->focusWidget()->objectName() : "", row.focus);
        QTest::keyClick(form->windowHandle(), Qt::Key_Escape);
        EXPECT_EQ(IsUnloaded(form), row.isModal);
        if (form) {
            form->hide();
            game.Choose(row.item);
            EXPECT_TRUE(form->isVisible());
            EXPECT_EQ(game.window.findChildren<QWidget*>(row.form).size(), 1);
            game.window.close();
            EXPECT_TRUE(IsUnloaded(form));
        } else if (row.key != Qt::Key()) {
            game.Activate();
            game.Key(row.key);
            game.Close(row.form);
        }
    }
}

/// How the names of player 3 are shown, and the short name in the dialog.
std::string Names(const GameWindow& game) {
    return game.Caption("PlayerName", 3) + "|" + game.Caption("InvasionPlayer", 3) + "|" +
           game.Caption("TradePlayer", 3) + "|" +
           game.Find<QLineEdit>("ShortNameEntry")->text().toStdString();
}

TEST(NameDialog, OpensBelowTheNameAndEveryKeyShowsAtOnce) {
    GameWindow game;
    game.Click("PlayerName", 3);
    const auto* form = game.Find<QWidget>("ColorSelectForm");
    EXPECT_TRUE(form->isVisible() && form->isModal());
    EXPECT_EQ(form->pos(), game.window.pos() + game.Find("PlayerName", 3)->pos() + QPoint(0, 67));
    EXPECT_EQ(Names(game), "|||") << "the design text counts as no name";
    auto* entry = game.Find<QLineEdit>("NameEntry");
    QTest::keyClicks(entry, "Ad");
    EXPECT_EQ(Names(game), "Ad|Ad|Ad|Ad");
    QTest::keyClicks(entry, "elheid");
    EXPECT_EQ(Names(game), "Adelheid|Adelheid|Ade|Ade");
    entry->setText(QString::fromUtf8("e\u0301a\U0001F680bc"));
    EXPECT_EQ(game.Caption("TradePlayer", 3), "e\u0301a\U0001F680") << "three characters";
    game.Find<QLineEdit>("ShortNameEntry")->setText("xy");
    game.Close("ColorSelectForm");
    game.Click("PlayerName", 3); // resets the short name
    EXPECT_EQ(game.Caption("TradePlayer", 3), "e\u0301a\U0001F680");
}

TEST(NameDialog, EnterConfirmsOnceEscapeDoesNothingAndClosingDoesNotRank) {
    for (const auto& [control, key, place] : {std::tuple{"NameEntry", Qt::Key_Enter, "Ada"},
                                              std::tuple{"ColorOK", Qt::Key_Enter, "Ada"},
                                              std::tuple{"NameEntry", Qt::Key_Escape, ""}}) {
        SCOPED_TRACE(control);
        const GameWindow game;
        game.Start();
        game.Click("PlayerName", 3);
        const QPointer form(game.Find<QWidget>("ColorSelectForm"));
        const QSignalSpy confirmed(form, SIGNAL(Confirmed()));
        QTest::keyClicks(game.Find<QLineEdit>("NameEntry"), "Ada");
        QTest::keyClick(game.Find<QWidget>(control), key);
        EXPECT_EQ(confirmed.count(), key != Qt::Key_Escape);
        EXPECT_EQ(IsUnloaded(form), key != Qt::Key_Escape);
        delete form;
        EXPECT_EQ(game.Caption("PlayerName", 3), "Ada");
        EXPECT_EQ(game.Caption("PolPlay", 3), place);
    }
}

} // namespace
} // namespace ksm
