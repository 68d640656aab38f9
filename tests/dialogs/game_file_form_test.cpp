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
    QListWidget* List() const { return form->findChild<QListWidget*>("File1"); }
    void Press(const char* button) const {
        QTest::mouseClick(form->findChild<QPushButton*>(button), Qt::LeftButton);
    }
    QPoint Row(int row) const { return List()->visualItemRect(List()->item(row)).center(); }
    const QString oldFolder = QDir::currentPath();
    QTemporaryDir folder;
    QWidget owner;
    GameState game = SampleGame();
    QPointer<GameFileForm> form;
};

TEST_F(GameFileForms, TheNameIsCompletedAndTheGameSaved) {
    for (const auto& [typed, used] :
         {std::pair{"savegame.ksm", "savegame.ksm"}, std::pair{"game1", "game1.ksm"},
          std::pair{"A.KSM", "A.KSM.ksm"}, std::pair{"", ".ksm"}, std::pair{"ksm", "ksm.ksm"}}) {
        Open(new SaveForm(game, &owner));
        EXPECT_EQ(Box()->text(), "savegame.ksm");
        Box()->setText(typed);
        Press("Sav");
        EXPECT_TRUE(IsUnloaded(form)) << typed;
        EXPECT_TRUE(LoadGameFile(used).Game) << typed;
    }
    EXPECT_EQ(QDir().entryList(QDir::Files | QDir::Hidden).size(), 5);
}

TEST_F(GameFileForms, AFailureIsToldAndTheDialogStays) {
    QDir().mkdir("taken.ksm");
    auto* load = new LoadForm(&owner);
    QSignalSpy loaded(load, &LoadForm::GameLoaded);
    const std::tuple<GameFileForm*, const char*, const char*, const char*> failures[]{
        {new SaveForm(game, &owner), "Sav", "Error Saving File",
         "An error occured saving the file."},
        {load, "Loa", "Error Loading File", "An error occured loading the file."}};
    for (const auto& [opened, button, title, text] : failures) {
        delete form;
        Open(opened);
        Box()->setText("taken");
        ExpectedBox box;
        Press(button);
        ASSERT_EQ(box.Said.size(), 3);
        EXPECT_EQ(box.Said.first(2), QStringList({title, text}));
        EXPECT_NE(box.Said[2], "");
        EXPECT_FALSE(IsUnloaded(form));
        EXPECT_EQ(Box()->text(), "taken.ksm");
    }
    EXPECT_EQ(loaded.count(), 0);
}

TEST_F(GameFileForms, ADoubleClickLoadsTheFileOnce) {
    SaveGameFile("first.ksm", GameState());
    SaveGameFile("second.ksm", game);
    SaveGameFile("other.txt", game);
    SaveGameFile("capital.KSM", game);
    auto* load = new LoadForm(&owner);
    Open(load);
    QByteArrayList loaded;
    QObject::connect(load, &LoadForm::GameLoaded,
                     [&](const GameState& read) { loaded << WriteGame(read); });
    ASSERT_EQ(List()->count(), 2);
    EXPECT_EQ(Box()->text(), "savegame.ksm") << "no file is picked before the user picks one";
    QTest::mouseClick(List()->viewport(), Qt::LeftButton, {}, Row(0));
    EXPECT_EQ(Box()->text(), "first.ksm");
    QTest::mouseClick(List()->viewport(), Qt::LeftButton, {}, Row(1));
    QTest::mouseDClick(List()->viewport(), Qt::LeftButton, {}, Row(1));
    EXPECT_EQ(loaded, QByteArrayList{WriteGame(game)});
    EXPECT_TRUE(IsUnloaded(form));
}

TEST_F(GameFileForms, ReturnConfirmsOnceAndEscapeCancels) {
    Open(new SaveForm(game, &owner));
    QTest::keyClick(Box(), Qt::Key_Escape);
    EXPECT_TRUE(IsUnloaded(form));
    Open(new SaveForm(game, &owner));
    Press("Cance");
    EXPECT_TRUE(IsUnloaded(form));
    EXPECT_TRUE(QDir().entryList(QDir::Files).empty());

    SaveGameFile("savegame.ksm", game);
    for (const char* control : {"FileNam", "File1", "Loa"}) {
        Open(new LoadForm(&owner));
        QSignalSpy loaded(form, SIGNAL(GameLoaded(ksm::GameState)));
        QTest::keyClick(form->findChild<QWidget*>(control), Qt::Key_Return);
        EXPECT_EQ(loaded.count(), 1) << control;
        EXPECT_TRUE(IsUnloaded(form)) << control;
    }
}

TEST_F(GameFileForms, ClickingTheNameLeavesTheExtensionOnly) {
    Open(new SaveForm(game, &owner));
    QTest::keyClick(Box(), Qt::Key_X);
    EXPECT_NE(Box()->text(), ".ksm") << "typing is no click";
    QTest::mouseClick(Box(), Qt::LeftButton);
    EXPECT_EQ(Box()->text(), ".ksm");
    QTest::keyClicks(Box(), "mine");
    EXPECT_EQ(Box()->text(), "mine.ksm");
}

} // namespace
} // namespace ksm
