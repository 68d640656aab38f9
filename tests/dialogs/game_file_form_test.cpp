#include "dialogs/game_file_form.h"
#include "tests/saves/saves_folder.h"
#include "tests/window_test.h"

#include <QListWidget>

namespace ksm {
namespace {

// Each test has a current folder of its own.
class GameFileForms : public SavesFolder {
protected:
    void Open(const GameFileDesign& design) {
        delete form;
        const bool saves = &design == &SaveDesign;
        const auto use = [this, saves](const QString& name) {
            return saves ? Save(name) : Load(name);
        };
        form = new GameFileForm(design, use, &owner);
        form->show();
        form->activateWindow();
        ASSERT_TRUE(QTest::qWaitForWindowActive(form));
    }
    Outcome<> Save(const QString& name) { return SaveGameFile(name, game); }
    Outcome<> Load(const QString& name) {
        const Outcome<GameState> read = LoadGameFile(name);
        if (!read) {
            return Failure{read.Reason()};
        }
        loaded << *WriteGame(*read);
        return {};
    }
    QLineEdit* Box() const { return form->findChild<QLineEdit*>("FileNam"); }
    void Key(Qt::Key key) const { QTest::keyClick(form->windowHandle(), key); }

    QWidget owner;
    GameState game = SampleGame();
    QByteArrayList loaded;
    QPointer<GameFileForm> form;
};

TEST_F(GameFileForms, TheNameIsCompletedAndReturnSavesOnceAndEscapeNothing) {
    for (const auto& [typed, used] :
         {std::pair{"savegame.ksm", "savegame.ksm"}, std::pair{"game1", "game1.ksm"},
          std::pair{"A.KSM", "A.KSM.ksm"}, std::pair{"", ".ksm"}}) {
        for (const auto key : {Qt::Key_Escape, Qt::Key_Return}) {
            Open(SaveDesign);
            EXPECT_EQ(Box()->text(), "savegame.ksm");
            Box()->setText(typed);
            Key(key);
            EXPECT_TRUE(IsUnloaded(form));
            EXPECT_EQ(QFile::exists(used), key == Qt::Key_Return) << typed;
        }
    }
    EXPECT_EQ(Files().size(), 4) << "none of them twice, which would leave a copy";
    Open(SaveDesign);
    QTest::keyClick(Box(), Qt::Key_X);
    EXPECT_NE(Box()->text(), ".ksm") << "typing is no click";
    QTest::mouseClick(form->windowHandle(), Qt::LeftButton, {}, Centre(Box()));
    QTest::keyClicks(Box(), "mine");
    EXPECT_EQ(Box()->text(), "mine.ksm");
    QTest::mouseClick(form->findChild<QPushButton*>("Cance"), Qt::LeftButton);
    EXPECT_TRUE(IsUnloaded(form));
}

TEST_F(GameFileForms, AFailureIsToldAsTypedAndTheDialogStays) {
    QDir().mkdir("<b>.ksm");
    for (const bool saves : {true, false}) {
        Open(saves ? SaveDesign : LoadDesign);
        Box()->setText("<b>");
        const MessageBoxes boxes;
        Key(Qt::Key_Return);
        ASSERT_EQ(boxes.Said.size(), 3);
        const QString verb = saves ? "saving" : "loading";
        EXPECT_EQ(boxes.Said[0], saves ? "Error Saving File" : "Error Loading File");
        EXPECT_EQ(boxes.Said[1], "An error occured " + verb + " the file.");
        EXPECT_TRUE(boxes.Said[2].startsWith("\"<b>.ksm\" in the folder"));
        EXPECT_FALSE(IsUnloaded(form));
    }
    delete form;
}

TEST_F(GameFileForms, AFileIsPickedByArrowClickOrDoubleClick) {
    SaveGameFile("first.ksm", GameState());
    SaveGameFile("second.ksm", game);
    Open(LoadDesign);
    auto* list = form->findChild<QListWidget*>("File1");
    for (const char* control : {"Loa", "Cance", "File1", "FileNam", "Loa", "Cance"}) {
        EXPECT_EQ(form->focusWidget()->objectName(), control);
        Key(Qt::Key_Tab);
    }
    Key(Qt::Key_Down);
    EXPECT_EQ(Box()->text(), "second.ksm");
    for (const int row : {0, 1}) {
        const QPoint place = list->visualItemRect(list->item(row)).center();
        QTest::mouseClick(list->viewport(), Qt::LeftButton, {}, place);
        EXPECT_EQ(Box()->text(), list->item(row)->text());
        EXPECT_EQ(AsRead(list->item(row)->toolTip()), list->item(row)->text());
        row == 1 ? QTest::mouseDClick(list->viewport(), Qt::LeftButton, {}, place) : void();
    }
    EXPECT_EQ(loaded, QByteArrayList{*WriteGame(game)});
    EXPECT_TRUE(IsUnloaded(form));
}

} // namespace
} // namespace ksm
