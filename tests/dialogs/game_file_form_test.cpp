#include "tests/game_window.h"
#include "tests/saves/saves_folder.h"

#include <QListWidget>

namespace ksm {
namespace {

// Each test has a current folder of its own.
class GameFileForms : public SavesFolder {
protected:
    QLineEdit* Open(const char* item) {
        game.Choose(item);
        form = game.Find<QWidget>(item == QString("SGame") ? "SaveForm" : "LoadForm");
        game.Activate(form);
        return game.Find<QLineEdit>("FileNam");
    }

    GameWindow game;
    QPointer<QWidget> form;
};

TEST_F(GameFileForms, TheNameIsCompletedAndReturnSavesAndEscapeNothing) {
    for (const char* typed : {"savegame.ksm", "game1", "A.KSM", ""}) {
        for (const auto key : {Qt::Key_Escape, Qt::Key_Return}) {
            QLineEdit* box = Open("SGame");
            EXPECT_EQ(box->text(), "savegame.ksm");
            box->setText(typed);
            game.Key(key);
            EXPECT_TRUE(IsUnloaded(form));
        }
    }
    EXPECT_EQ(Files(), QStringList({".ksm", "A.KSM.ksm", "game1.ksm", "savegame.ksm"}));
    game.Click(Open("SGame"));
    game.Key(Qt::Key_M);
    EXPECT_EQ(game.Find<QLineEdit>("FileNam")->text(), "m.ksm");
    game.Click("Cance");
    EXPECT_TRUE(IsUnloaded(form));
    EXPECT_EQ(Files().size(), 4);
}

TEST_F(GameFileForms, AFailureIsToldAsTypedAndTheDialogStays) {
    MessageBoxes boxes;
    Open("SGame")->setText("no/folder");
    game.Key(Qt::Key_Return);
    EXPECT_EQ(boxes.Said.takeFirst(), "Error Saving File");
    EXPECT_EQ(boxes.Said.takeFirst(), "An error occured saving the file.");
    boxes.Said.clear();
    game.Close("SaveForm");
    Open("LGame")->setText("<b>");
    game.Key(Qt::Key_Return);
    EXPECT_EQ(boxes.Said.first(2),
              QStringList({"Error Loading File", "An error occured loading the file."}));
    EXPECT_TRUE(boxes.Said[2].startsWith("\"<b>.ksm\" in the folder"));
    EXPECT_FALSE(IsUnloaded(form));
}

TEST_F(GameFileForms, AFileIsPickedByArrowClickOrDoubleClick) {
    SaveGameFile("first.ksm", WithNotes("first"));
    SaveGameFile("second.ksm", WithNotes("second"));
    const QLineEdit* box = Open("LGame");
    auto* list = form->findChild<QListWidget*>("File1");
    list->setFocus();
    game.Key(Qt::Key_Down);
    EXPECT_EQ(box->text(), "second.ksm");
    for (const int row : {0, 1}) {
        const QPoint place = list->visualItemRect(list->item(row)).center();
        QTest::mouseClick(list->viewport(), Qt::LeftButton, {}, place);
        EXPECT_EQ(box->text(), list->item(row)->text());
        row == 1 ? QTest::mouseDClick(list->viewport(), Qt::LeftButton, {}, place) : void();
    }
    EXPECT_EQ(game.state.NotesText, "second");
    EXPECT_TRUE(IsUnloaded(form));
}

} // namespace
} // namespace ksm
