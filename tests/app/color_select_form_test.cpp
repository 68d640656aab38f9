#include "tests/game_window.h"

namespace ksm {
namespace {

/// The name dialog of player 3, opened by a click on the name.
struct NameDialog : GameWindow {
    QPointer<QWidget> form;

    NameDialog() {
        Start();
        Open();
    }

    void Open() {
        Click("PlayerName", 3);
        form = Find<QWidget>("ColorSelectForm");
    }
    QLineEdit* Entry(const char* name) const { return Find<QLineEdit>(name); }
    std::string Captions() const {
        return Caption("PlayerName", 3) + "|" + Caption("InvasionPlayer", 3) + "|" +
               Caption("TradePlayer", 3);
    }
    void Confirm(const char* control) const {
        QTest::keyClick(Find<QWidget>(control), Qt::Key_Enter);
        DeleteClosed();
    }
};

TEST(NameDialog, OpensBelowThePlayersNameAndEmptiesTheLabelsOfAPlayerWithout) {
    NameDialog dialog;
    EXPECT_TRUE(dialog.form->isModal());
    const QPoint name = dialog.Find("PlayerName", 3)->pos();
    EXPECT_EQ(dialog.form->pos(), dialog.window.pos() + name + QPoint(0, 67));
    EXPECT_EQ(dialog.Captions(), "||");
}

TEST(NameDialog, EveryKeyShowsAtOnce) {
    NameDialog dialog;
    for (const auto& [typed, captions] : {std::pair{"A", "A|A|A"}, std::pair{"d", "Ad|Ad|Ad"},
                                          std::pair{"elheid", "Adelheid|Adelheid|Ade"}}) {
        QTest::keyClicks(dialog.Entry("NameEntry"), typed);
        EXPECT_EQ(dialog.Captions(), captions);
    }
    dialog.Entry("ShortNameEntry")->setText("Heidi");
    EXPECT_EQ(dialog.Captions(), "Adelheid|Adelheid|Heidi");
    dialog.Entry("NameEntry")->setText(QString::fromUtf8("e\u0301a\U0001F680bc"));
    EXPECT_EQ(dialog.Caption("TradePlayer", 3), "e\u0301a\U0001F680") << "three characters";
}

TEST(NameDialog, OpeningAgainResetsTheShortNameUnlessTheNameIsTheDesignText) {
    for (const auto& [name, shortName] : {std::pair{"Adelheid", "Ade"}, std::pair{"Name", "xy"}}) {
        NameDialog dialog;
        dialog.Entry("NameEntry")->setText(name);
        dialog.Entry("ShortNameEntry")->setText("xy");
        dialog.Confirm("NameEntry");
        dialog.Open();
        EXPECT_EQ(dialog.Entry("NameEntry")->text(), name);
        EXPECT_EQ(dialog.Caption("TradePlayer", 3), shortName);
    }
}

TEST(NameDialog, TheLastSwatchColoursBothLabels) {
    NameDialog dialog;
    dialog.Click("NameColor", 3);
    dialog.Click("NameColor", 12);
    for (const char* array : {"PlayerName", "TradePlayer"}) {
        EXPECT_EQ(dialog.Back(array, 3), QColor(0, 0, 128)) << array;
        EXPECT_EQ(dialog.Find(array, 3)->palette().color(QPalette::WindowText), QColor(Qt::white));
    }
}

TEST(NameDialog, EnterConfirmsOnceWhereverTheKeyboardIs) {
    for (const char* control : {"NameEntry", "ShortNameEntry", "ColorOK"}) {
        NameDialog dialog;
        QSignalSpy confirmed(dialog.form, SIGNAL(Confirmed()));
        QTest::keyClicks(dialog.Entry("NameEntry"), "Ada");
        dialog.Confirm(control);
        EXPECT_EQ(confirmed.count(), 1) << control;
        EXPECT_TRUE(dialog.form.isNull());
        EXPECT_EQ(dialog.Caption("PolPlay", 3), "Ada") << "the order of play has the new name";
    }
}

TEST(NameDialog, EscapeLeavesItOpenAndClosingKeepsTheNameWithoutRanking) {
    NameDialog dialog;
    QTest::keyClicks(dialog.Entry("NameEntry"), "Ada");
    QTest::keyClick(dialog.Entry("NameEntry"), Qt::Key_Escape);
    EXPECT_TRUE(dialog.form->isVisible());
    dialog.form->close();
    EXPECT_EQ(dialog.Caption("PlayerName", 3), "Ada");
    EXPECT_EQ(dialog.Caption("PolPlay", 3), "");
}

} // namespace
} // namespace ksm
