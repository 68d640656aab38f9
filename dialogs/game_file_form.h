// What the save and the load dialog have in common.
#pragma once

#include "controls/fixed_dialog.h"
#include "model/outcome.h"

#include <QRect>

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

/// Lets the user pick a game file of the current folder, or type the name of one. The folder is
/// read once, when the dialog is made.
class GameFileForm : public FixedDialog {
    Q_OBJECT

protected:
    GameFileForm(const GameFileDesign& design, QWidget* owner);

    /// Completes the name in the box with ".ksm", uses the file and closes the dialog; what went
    /// wrong is shown, and the dialog stays open.
    void Confirm();
    /// Writes or reads the file.
    virtual Outcome<> UseFile(const QString& name) = 0;

    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void BuildControls();
    void File1_Click();
    void File1_DblClick();
    void FileNam_Click();
    void Cance_Click();

    const GameFileDesign& look;
    QListWidget* File1;
    QLineEdit* FileNam;
};

} // namespace ksm
