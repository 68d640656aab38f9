// The windows that the menus open, and what they do to the main window.

#include "tests/game_window.h"

namespace ksm {
namespace {

TEST(Windows, TheMainOneStandsInTheMiddleOfTheScreen) {
    GameState game;
    const Korvane window(game, nullptr);
    EXPECT_EQ(window.geometry().center(), window.screen()->geometry().center());
}

TEST(Windows, StandInTheirPlacesAndStayUntilTheyAreClosed) {
    const struct {
        const char *item, *form, *title;
        Qt::Key key;
        QPoint place;
        bool isModal;
    } rows[]{{"LGame", "LoadForm", "Load Game", Qt::Key_F1, {3, 44}, true},
             {"SGame", "SaveForm", "Save Game", Qt::Key_F2, {3, 44}, true},
             {"Stech", "TechForm", "Flowchart (Standard)", Qt::Key_F5, {0, 0}, true},
             {"HTech", "TechForm2", "Flowchart (Corrin's End)", Qt::Key_F6, {0, 0}, true},
             {"MenuTechMod", "TechModForm", "Tech cost modifiers", {}, {204, 70}, true},
             {"About", "AboutForm", "About Korvane Astrell Manager", {}, {142, 79}, true},
             {"Notes", "NoteForm", "Notes", {}, {560, 220}, false},
             {"Dice", "DiceForm", "Dice Roller", {}, {560, 33}, false}};
    for (const auto& row : rows) {
        SCOPED_TRACE(row.form);
        GameWindow game;
        game.Choose(row.item);
        const QPointer form(game.Find<QWidget>(row.form));
        EXPECT_TRUE(form->windowTitle().endsWith(row.title));
        EXPECT_EQ(form->pos() - game.window.pos(), row.place);
        EXPECT_TRUE(form->isVisible() && form->isModal() == row.isModal);
        QTest::keyClick(form, Qt::Key_Escape);
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
            QTest::keyClick(&game.window, row.key);
            game.Close(row.form);
        }
    }
}

/// The name dialog of player 3, opened by a click on the name.
struct NameDialog : GameWindow {
    NameDialog() {
        Start();
        Click("PlayerName", 3);
    }

    QLineEdit* Entry(const char* name) const { return Find<QLineEdit>(name); }
    std::string Captions() const {
        return Caption("PlayerName", 3) + "|" + Caption("InvasionPlayer", 3) + "|" +
               Caption("TradePlayer", 3) + "|" + Entry("ShortNameEntry")->text().toStdString();
    }
};

TEST(NameDialog, OpensBelowTheNameAndEveryKeyShowsAtOnce) {
    NameDialog dialog;
    const auto* form = dialog.Find<QWidget>("ColorSelectForm");
    EXPECT_TRUE(form->isVisible() && form->isModal());
    EXPECT_EQ(form->pos(),
              dialog.window.pos() + dialog.Find("PlayerName", 3)->pos() + QPoint(0, 67));
    EXPECT_EQ(dialog.Captions(), "|||") << "the design text counts as no name";
    for (const auto& [typed, captions] : {std::pair{"A", "A|A|A|A"}, std::pair{"d", "Ad|Ad|Ad|Ad"},
                                          std::pair{"elheid", "Adelheid|Adelheid|Ade|Ade"}}) {
        QTest::keyClicks(dialog.Entry("NameEntry"), typed);
        EXPECT_EQ(dialog.Captions(), captions);
    }
    dialog.Entry("ShortNameEntry")->setText("Heidi");
    EXPECT_EQ(dialog.Captions(), "Adelheid|Adelheid|Heidi|Heidi");
    dialog.Entry("NameEntry")->setText(QString::fromUtf8("e\u0301a\U0001F680bc"));
    EXPECT_EQ(dialog.Caption("TradePlayer", 3), "e\u0301a\U0001F680") << "three characters";
}

TEST(NameDialog, OpeningAgainResetsTheShortNameUnlessTheNameIsTheDesignText) {
    for (const auto& [name, shortName] : {std::pair{"Adelheid", "Ade"}, std::pair{"Name", "xy"}}) {
        NameDialog dialog;
        dialog.Entry("NameEntry")->setText(name);
        dialog.Entry("ShortNameEntry")->setText("xy");
        dialog.Close("ColorSelectForm");
        dialog.Click("PlayerName", 3);
        EXPECT_EQ(dialog.Entry("NameEntry")->text(), name);
        EXPECT_EQ(dialog.Caption("TradePlayer", 3), shortName);
    }
}

TEST(NameDialog, EnterConfirmsOnceEscapeDoesNothingAndClosingDoesNotRank) {
    for (const auto& [control, key, place] : {std::tuple{"NameEntry", Qt::Key_Enter, "Ada"},
                                              std::tuple{"ShortNameEntry", Qt::Key_Return, "Ada"},
                                              std::tuple{"ColorOK", Qt::Key_Enter, "Ada"},
                                              std::tuple{"NameEntry", Qt::Key_Escape, ""}}) {
        SCOPED_TRACE(control);
        NameDialog dialog;
        const QPointer form(dialog.Find<QWidget>("ColorSelectForm"));
        const QSignalSpy confirmed(form, SIGNAL(Confirmed()));
        QTest::keyClicks(dialog.Entry("NameEntry"), "Ada");
        QTest::keyClick(dialog.Find<QWidget>(control), key);
        EXPECT_EQ(confirmed.count(), key != Qt::Key_Escape);
        EXPECT_EQ(IsUnloaded(form), key != Qt::Key_Escape);
        delete form;
        EXPECT_EQ(dialog.Caption("PlayerName", 3), "Ada");
        EXPECT_EQ(dialog.Caption("PolPlay", 3), place);
    }
}

} // namespace
} // namespace ksm
