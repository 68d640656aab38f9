#include "dialogs/game_file_form.h"
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
    GameFileForm* SaveForm() {
        return new GameFileForm(
            SaveDesign, [this](const QString& name) { return SaveGameFile(name, game); }, &owner);
    }
    GameFileForm* LoadForm() {
        const auto load = [this](const QString& name) -> Outcome<> {
            const Outcome<GameState> read = LoadGameFile(name);
            if (!read) {
                return Failure{read.Reason()};
            }
            loaded << name;
            return {};
        };
        return new GameFileForm(LoadDesign, load, &owner);
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
    QStringList loaded; ///< names of the files
};

TEST_F(GameFileForms, TheNameIsCompletedAndTheGameSaved) {
    for (const auto& [typed, used] :
         {std::pair{"savegame.ksm", "savegame.ksm"}, std::pair{"game1", "game1.ksm"},
          std::pair{"A.KSM", "A.KSM.ksm"}, std::pair{"", ".ksm"}}) {
        Open(SaveForm());
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
        {SaveForm(), "Sav", "Error Saving File", "An error occured saving the file."},
        {LoadForm(), "Loa", "Error Loading File", "An error occured loading the file."}};
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
    Open(LoadForm());
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
    EXPECT_EQ(loaded, QStringList("second.ksm"));
    EXPECT_TRUE(IsUnloaded(form));
}

TEST_F(GameFileForms, ReturnConfirmsOnceAndEscapeOrCancelSavesNothing) {
    for (const bool byKey : {true, false}) {
        Open(SaveForm());
        byKey ? QTest::keyClick(Box(), Qt::Key_Escape) : Press("Cance");
        EXPECT_TRUE(IsUnloaded(form));
    }
    EXPECT_TRUE(QDir().entryList(QDir::Files).empty());
    SaveGameFile("savegame.ksm", game);
    for (const char* control : {"FileNam", "File1", "Loa"}) {
        Open(LoadForm());
        loaded.clear();
        QTest::keyClick(form->findChild<QWidget*>(control), Qt::Key_Return);
        EXPECT_EQ(loaded, QStringList("savegame.ksm")) << control;
        EXPECT_TRUE(IsUnloaded(form)) << control;
    }
}

TEST_F(GameFileForms, TabGoesFromTheButtonsToListAndName) {
    Open(LoadForm());
    form->activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(form));
    for (const char* control : {"Loa", "Cance", "File1", "FileNam", "Loa"}) {
        EXPECT_EQ(form->focusWidget()->objectName(), control);
        QTest::keyClick(form->focusWidget(), Qt::Key_Tab);
    }
}

TEST_F(GameFileForms, ClickingTheNameLeavesTheExtensionOnly) {
    Open(SaveForm());
    QTest::keyClick(Box(), Qt::Key_X);
    EXPECT_NE(Box()->text(), ".ksm") << "typing is no click";
    QTest::mouseClick(Box(), Qt::LeftButton);
    QTest::keyClicks(Box(), "mine");
    EXPECT_EQ(Box()->text(), "mine.ksm");
}

} // namespace
} // namespace ksm
