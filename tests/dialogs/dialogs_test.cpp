#include "tests/game_window.h"
#include "tests/saves/saves_folder.h"

#include <QClipboard>
#include <QListWidget>

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

TEST(Dialogs, ThatStayOpenAreOpenedOnceAndCloseWithTheMainWindow) {
    for (const auto& [item, name] : {std::pair{"Notes", "NoteForm"}, {"Dice", "DiceForm"}}) {
        const GameWindow game;
        game.Choose(item);
        const QPointer form(game.Find<QWidget>(name));
        form->hide();
        game.Choose(item);
        EXPECT_TRUE(form->isVisible());
        EXPECT_EQ(game.window.findChildren<QWidget*>(name).size(), 1);
        game.Choose("Quit");
        EXPECT_FALSE(game.window.isVisible());
        EXPECT_TRUE(IsUnloaded(form));
    }
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
