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
        const auto use = [this](const QString& name) {
            used << name;
            return outcome;
        };
        form = new GameFileForm(design, use, &owner);
        form->show();
        form->activateWindow();
        ASSERT_TRUE(QTest::qWaitForWindowActive(form));
    }
    QLineEdit* Box() const { return form->findChild<QLineEdit*>("FileNam"); }
    void Key(Qt::Key key) const { QTest::keyClick(form->windowHandle(), key); }

    QWidget owner;
    QStringList used;
    Outcome<> outcome;
    QPointer<GameFileForm> form;
};

TEST_F(GameFileForms, TheNameIsCompletedAndReturnSavesOnceAndEscapeNothing) {
    for (const char* typed : {"savegame.ksm", "game1", "A.KSM", ""}) {
        for (const auto key : {Qt::Key_Escape, Qt::Key_Return}) {
            Open(SaveDesign);
            EXPECT_EQ(Box()->text(), "savegame.ksm");
            Box()->setText(typed);
            Key(key);
            EXPECT_TRUE(IsUnloaded(form));
        }
    }
    EXPECT_EQ(used, QStringList({"savegame.ksm", "game1.ksm", "A.KSM.ksm", ".ksm"}));
    Open(SaveDesign);
    QTest::mouseClick(form->windowHandle(), Qt::LeftButton, {}, Centre(Box()));
    QTest::keyClicks(Box(), "mine");
    EXPECT_EQ(Box()->text(), "mine.ksm");
}

TEST_F(GameFileForms, AFailureIsToldAsTypedAndTheDialogStays) {
    outcome = Failure{"No <b>!"};
    Open(LoadDesign);
    const MessageBoxes boxes;
    Key(Qt::Key_Return);
    EXPECT_EQ(boxes.Said,
              QStringList({"Error Loading File", "An error occured loading the file.", "No <b>!"}));
    EXPECT_FALSE(IsUnloaded(form));
    delete form;
}

TEST_F(GameFileForms, AFileIsPickedByArrowClickOrDoubleClick) {
    SaveGameFile("first.ksm", GameState());
    SaveGameFile("second.ksm", GameState());
    Open(LoadDesign);
    auto* list = form->findChild<QListWidget*>("File1");
    list->setFocus();
    Key(Qt::Key_Down);
    EXPECT_EQ(Box()->text(), "second.ksm");
    for (const int row : {0, 1}) {
        const QPoint place = list->visualItemRect(list->item(row)).center();
        QTest::mouseClick(list->viewport(), Qt::LeftButton, {}, place);
        EXPECT_EQ(Box()->text(), list->item(row)->text());
        row == 1 ? QTest::mouseDClick(list->viewport(), Qt::LeftButton, {}, place) : void();
    }
    EXPECT_EQ(used, QStringList("second.ksm"));
    EXPECT_TRUE(IsUnloaded(form));
}

} // namespace
} // namespace ksm
