#include "tests/game_window.h"
#include "tests/saves/saves_folder.h"

#include <QClipboard>
#include <QListWidget>
#include <QPlainTextEdit>

namespace ksm {
namespace {

TEST(Dialogs, ATabOrALineFeedInANameBecomesABlankAndTheShortNameCountsCharacters) {
    GameWindow game;
    game.Click("PlayerName", 3);
    const QSignalSpy changes(&game.window, &Korvane::Changed);
    QGuiApplication::clipboard()->setText(QString::fromUtf8("e\u0301\t\U0001F680c\u2028d\u00A0"));
    for (const auto& [entry, shortName] : {std::pair{"NameEntry", "e\u0301 \U0001F680"},
                                           {"ShortNameEntry", "e\u0301 \U0001F680c d\u00A0"}}) {
        game.Find<QLineEdit>(entry)->selectAll();
        game.Find<QLineEdit>(entry)->paste();
        EXPECT_EQ(game.state.Game.Player(3).Name, "e\u0301 \U0001F680c d\u00A0");
        EXPECT_EQ(game.state.Game.Player(3).ShortName, shortName);
    }
    EXPECT_EQ(changes.count(), 2) << "the name brings its short name along";
}

TEST(Dialogs, NotesKeepTheirLinesAndBlanks) {
    const GameWindow game;
    game.Choose("Notes");
    auto* notes = game.Find<QPlainTextEdit>("Aant");
    notes->insertPlainText(QString::fromUtf8("1\n2\u20283\u00A0"));
    EXPECT_EQ(game.state.NotesText, "1\n2\n3\u00A0");
    QGuiApplication::clipboard()->setText(QString(1001, 'w'));
    notes->paste();
    EXPECT_EQ(notes->wordWrapMode(), QTextOption::WrapAnywhere) << "or it takes minutes";
}

using SavedGames = SavesFolder;

TEST_F(SavedGames, ArePickedByClickOrDoubleClick) {
    SaveGameFile("first.ksm", WithNotes("first"));
    SaveGameFile("second.ksm", WithNotes("second"));
    const GameWindow game;
    game.Choose("LGame");
    auto* list = game.Find<QListWidget>("File1");
    for (const int row : {0, 1}) {
        const QPoint place = list->visualItemRect(list->item(row)).center();
        QTest::mouseClick(list->viewport(), Qt::LeftButton, {}, place);
        EXPECT_EQ(game.Find<QLineEdit>("FileNam")->text(), list->item(row)->text());
        row == 1 ? QTest::mouseDClick(list->viewport(), Qt::LeftButton, {}, place) : void();
    }
    EXPECT_EQ(game.state.NotesText, "second");
    DeleteClosed();
    EXPECT_EQ(game.window.findChild<QWidget*>("LoadForm"), nullptr);
}

} // namespace
} // namespace ksm
