// The dialogs that save and load a game.
#pragma once

#include "controls/fixed_dialog.h"
#include "model/outcome.h"

#include <QRect>

#include <functional>

class QLineEdit;
class QListWidget;

namespace ksm {

/// What differs between the two dialogs; places are pixels of the client area.
struct GameFileDesign {
    const char* FormName = "";
    const char* Title = "";
    const char* ButtonName = "";
    const char* ButtonCaption = "";
    const char* FailureTitle = "";
    const char* FailureText = "";
    QRect List;
    QRect Label;
    QRect Box;
    QRect Button;
};

inline constexpr GameFileDesign SaveDesign{
    .FormName = "SaveForm",
    .Title = "Save Game",
    .ButtonName = "Sav",
    .ButtonCaption = "Save",
    .FailureTitle = "Error Saving File",
    .FailureText = "An error occured saving the file.",
    .List = {10, 8, 129, 58},
    .Label = {9, 87, 48, 17},
    .Box = {59, 85, 78, 19},
    .Button = {16, 112, 50, 25},
};

inline constexpr GameFileDesign LoadDesign{
    .FormName = "LoadForm",
    .Title = "Load Game",
    .ButtonName = "Loa",
    .ButtonCaption = "Load",
    .FailureTitle = "Error Loading File",
    .FailureText = "An error occured loading the file.",
    .List = {10, 9, 129, 58},
    .Label = {10, 88, 48, 17},
    .Box = {59, 85, 79, 19},
    .Button = {16, 112, 51, 25},
};

/// Lets the user pick a game file of the current folder, or type the name of one. The folder is
/// read once, when the dialog is made.
class GameFileForm : public FixedDialog {
    Q_OBJECT

public:
    /// Writes or reads the file of this name.
    using FileUse = std::function<Outcome<>(const QString& name)>;

    /// `design` must outlive the dialog.
    GameFileForm(const GameFileDesign& design, FileUse use, QWidget* owner);

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void BuildControls();
    /// Completes the name in the box with ".ksm", uses the file and closes the dialog; what went
    /// wrong is shown, and the dialog stays open.
    void Confirm();
    void File1_Click();
    void File1_DblClick();
    void FileNam_Click();
    void Cance_Click();

    const GameFileDesign& look;
    FileUse useFile;
    QListWidget* File1;
    QLineEdit* FileNam;
};

} // namespace ksm
