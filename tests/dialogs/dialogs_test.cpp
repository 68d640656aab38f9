#include "tests/game_window.h"

#include <QClipboard>
#include <QPlainTextEdit>

namespace ksm {
namespace {

TEST(Dialogs, EveryChangeOfTheNotesIsKeptAtOnceAndOutlivesTheWindow) {
    GameWindow game;
    for (const char* before : {"", "tax\né€\t😀"}) {
        game.Choose("Notes");
        auto* box = game.Find<QPlainTextEdit>("Aant");
        EXPECT_EQ(box->toPlainText(), before);
        game.Activate(box->window());
        box->clear();
        QTest::keyClicks(box, "tax");
        EXPECT_EQ(game.state.NotesText, "tax");
        QGuiApplication::clipboard()->setText(QString::fromUtf8("\né€\t😀"));
        game.Key(Qt::Key_V, Qt::ControlModifier);
        EXPECT_EQ(game.state.NotesText, "tax\né€\t😀");
        game.Close("NoteForm");
    }
}

TEST(Dialogs, ATabOrALineFeedInANameBecomesABlank) {
    GameWindow game;
    game.Click("PlayerName", 3);
    const QSignalSpy changes(&game.window, &Korvane::Changed);
    QGuiApplication::clipboard()->setText(QString::fromUtf8("a\tb\nc\u2028d\u00A0e\u200D"));
    for (const char* name : {"NameEntry", "ShortNameEntry"}) {
        game.Find<QLineEdit>(name)->selectAll();
        game.Find<QLineEdit>(name)->paste();
    }
    EXPECT_EQ(changes.count(), 2) << "the name brings its short name along";
    EXPECT_EQ(game.state.Game.Player(3).Name, "a b c d\u00A0e\u200D");
    EXPECT_EQ(game.state.Game.Player(3).ShortName, "a b c d\u00A0e\u200D");
}

TEST(Dialogs, AClickAnywhereOnAChartButOnTheLegendUnloadsIt) {
    const GameWindow game;
    for (const char* name : {"Label1(0)", "Label1(23)", "Label2", "TechForm2"}) {
        game.Choose("HTech");
        const QPointer form(game.Find<QWidget>("TechForm2"));
        auto* place = name == form->objectName() ? form.data() : game.Find<QWidget>(name);
        for (const auto button : {Qt::RightButton, Qt::LeftButton}) {
            QTest::mouseClick(form->windowHandle(), button, {}, PlaceIn(place, {12, 12}));
            EXPECT_EQ(IsUnloaded(form), button == Qt::LeftButton && name != QString("Label2"));
        }
        form ? game.Close("TechForm2") : void();
    }
}

} // namespace
} // namespace ksm
