#include "dialogs/load_form.h"
#include "dialogs/save_form.h"
#include "saves/game_file.h"
#include "tests/saves/sample_game.h"
#include "tests/window_test.h"

#include <QDir>
#include <QListWidget>

namespace ksm {
namespace {

// Each test has a current folder of its own.
class GameFileForms : public testing::Test {
protected:
    void SetUp() override { QDir::setCurrent(folder.path()); }
    void TearDown() override {
        delete form;
        QDir::setCurrent(oldFolder);
    }

    void Open(GameFileForm* opened) {
        form = opened;
        form->show();
    }
    QLineEdit* Box() const { return form->findChild<QLineEdit*>("FileNam"); }
    void Press(const char* button) const {
        QTest::mouseClick(form->findChild<QPushButton*>(button), Qt::LeftButton);
    }
    const QString oldFolder = QDir::currentPath();
    QTemporaryDir folder;
    QWidget owner;
    GameState game = SampleGame();
    QPointer<GameFileForm> form;
};

TEST_F(GameFileForms, TheNameIsCompletedAndTheGameSaved) {
    for (const auto& [typed, used] :
         {std::pair{"savegame.ksm", "savegame.ksm"}, std::pair{"game1", "game1.ksm"},
          std::pair{"A.KSM", "A.KSM.ksm"}, std::pair{"", ".ksm"}}) {
        Open(new SaveForm(game, &owner));
        EXPECT_EQ(Box()->text(), "savegame.ksm");
        Box()->setText(typed);
        Press("Sav");
        EXPECT_TRUE(IsUnloaded(form) && LoadGameFile(used)) << typed;
    }
    EXPECT_EQ(QDir().entryList(QDir::Files | QDir::Hidden).size(), 4);
}

TEST_F(GameFileForms, AFailureIsToldAsTypedAndTheDialogStays) {
    QDir().mkdir("<b>.ksm");
    const std::tuple<GameFileForm*, const char*, const char*, const char*> failures[]{
        {new SaveForm(game, &owner), "Sav", "Error Saving File",
         "An error occured saving the file."},
        {new LoadForm(&owner), "Loa", "Error Loading File", "An error occured loading the file."}};
    for (const auto& [opened, button, title, text] : failures) {
        delete form;
        Open(opened);
        Box()->setText("<b>");
        const MessageBoxes boxes;
        Press(button);
        ASSERT_EQ(boxes.Said.size(), 3);
        EXPECT_EQ(boxes.Said.first(2), QStringList({title, text}));
        EXPECT_TRUE(boxes.Said[2].startsWith("\"<b>.ksm\" in the folder"));
        EXPECT_FALSE(IsUnloaded(form));
    }
}

TEST_F(GameFileForms, ADoubleClickLoadsTheFileOnce) {
    SaveGameFile("first.ksm", GameState());
    SaveGameFile("second.ksm", game);
    auto* load = new LoadForm(&owner);
    Open(load);
    QByteArrayList loaded;
    QObject::connect(load, &LoadForm::GameLoaded,
                     [&](const GameState& read) { loaded << *WriteGame(read); });
    auto* list = form->findChild<QListWidget*>("File1");
    QTest::keyClick(list, Qt::Key_Down);
    EXPECT_EQ(Box()->text(), "first.ksm");
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

TEST_F(GameFileForms, ReturnConfirmsOnceAndEscapeOrCancelSavesNothing) {
    for (const bool byKey : {true, false}) {
        Open(new SaveForm(game, &owner));
        byKey ? QTest::keyClick(Box(), Qt::Key_Escape) : Press("Cance");
        EXPECT_TRUE(IsUnloaded(form));
    }
    EXPECT_TRUE(QDir().entryList(QDir::Files).empty());
    SaveGameFile("savegame.ksm", game);
    for (const char* control : {"FileNam", "File1", "Loa"}) {
        Open(new LoadForm(&owner));
        const QSignalSpy loaded(form, SIGNAL(GameLoaded(ksm::GameState)));
        QTest::keyClick(form->findChild<QWidget*>(control), Qt::Key_Return);
        EXPECT_EQ(loaded.count(), 1) << control;
        EXPECT_TRUE(IsUnloaded(form)) << control;
    }
}

TEST_F(GameFileForms, TabGoesFromTheButtonsToListAndName) {
    Open(new LoadForm(&owner));
    form->activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(form));
    for (const char* control : {"Loa", "Cance", "File1", "FileNam", "Loa"}) {
        EXPECT_EQ(form->focusWidget()->objectName(), control);
        QTest::keyClick(form->focusWidget(), Qt::Key_Tab);
    }
}

TEST_F(GameFileForms, ClickingTheNameLeavesTheExtensionOnly) {
    Open(new SaveForm(game, &owner));
    QTest::keyClick(Box(), Qt::Key_X);
    EXPECT_NE(Box()->text(), ".ksm") << "typing is no click";
    QTest::mouseClick(Box(), Qt::LeftButton);
    QTest::keyClicks(Box(), "mine");
    EXPECT_EQ(Box()->text(), "mine.ksm");
}

} // namespace
} // namespace ksm
