// The windows that the menus open, and what they do to the main window.

#include "tests/game_window.h"

namespace ksm {
namespace {

TEST(Windows, OneInstanceIsShownAgainAndClosesWithTheMainWindow) {
    for (const auto& [item, name] :
         {std::pair{"Notes", "NoteForm"}, std::pair{"Dice", "DiceForm"}}) {
        GameWindow game;
        game.Choose(item);
        const QPointer form(game.Find<QWidget>(name));
        EXPECT_FALSE(form->isModal());
        form->hide();
        game.Choose(item);
        EXPECT_TRUE(form->isVisible()) << name;
        EXPECT_EQ(game.window.findChildren<QWidget*>(name).size(), 1) << name;
        game.window.close();
        EXPECT_TRUE(IsUnloaded(form)) << name;
    }
}

TEST(Windows, TheMenusAndTheirKeysOpenModalWindows) {
    const std::tuple<const char*, const char*, Qt::Key> rows[]{
        {"LoadForm", "LGame", Qt::Key_F1},         {"SaveForm", "SGame", Qt::Key_F2},
        {"TechForm", "Stech", Qt::Key_F5},         {"TechForm2", "HTech", Qt::Key_F6},
        {"TechModForm", "MenuTechMod", Qt::Key()}, {"AboutForm", "About", Qt::Key()}};
    for (const auto& [form, item, key] : rows) {
        GameWindow game;
        game.Activate();
        game.Choose(item);
        EXPECT_TRUE(game.Find<QWidget>(form)->isModal()) << form;
        game.Close(form);
        if (key != Qt::Key()) {
            game.Activate();
            QTest::keyClick(&game.window, key);
            game.Close(form);
        }
    }
}

TEST(Modifiers, EachBarChangesTheCostsOfItsColourAndReopensAtZero) {
    const std::tuple<int, const char*, int, const char*, const char*> moves[]{
        {0, "PlayerGreenTech", 0, "+15", "45"},
        {1, "PlayerBlueTech", 12, "+3", "33"},
        {2, "PlayerRedTech", 30, "-15", "15"},
        {3, "PlayerYellowTech", 16, "-1", "29"}};
    for (const auto& [index, cost, position, caption, expected] : moves) {
        GameWindow game;
        game.Choose("MenuTechMod");
        const auto bar = [&, at = index] { return game.Find<QScrollBar>("VScroll1", at); };
        bar()->setValue(position);
        EXPECT_EQ(game.Find("TechModLabel", index)->ShownText(), caption);
        game.Close("TechModForm");
        game.Choose("MenuTechMod");
        EXPECT_EQ(game.Caption("TechModLabel", index), "0");
        EXPECT_EQ(game.Caption(cost, 4), expected) << "the modifier stays in force";
        QTest::mouseClick(bar(), Qt::LeftButton, {}, QPoint(8, 77));
        EXPECT_EQ(game.Caption(cost, 4), "29") << "from the position alone";
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
    EXPECT_TRUE(form->isModal());
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
    dialog.Click("NameColor", 3);
    dialog.Click("NameColor", 12);
    EXPECT_EQ(dialog.Back("PlayerName", 3), QColor(0, 0, 128));
    EXPECT_EQ(dialog.Back("TradePlayer", 3), QColor(0, 0, 128));
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
