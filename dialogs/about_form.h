// The About window.
#pragma once

#include "controls/fixed_dialog.h"

class QLineEdit;

namespace ksm {

/// Says what the program is, and where more is to be found. Addresses can be selected and copied.
class AboutForm : public FixedDialog {
    Q_OBJECT

public:
    explicit AboutForm(QWidget* owner);

private:
    void Form_Load();
    void Text1_Change();
    void Text2_Change();
    void Text3_Change();
    void Command1_Click();

    QLineEdit* Text1;
    QLineEdit* Text2;
    QLineEdit* Text3;
};

} // namespace ksm
