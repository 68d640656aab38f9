// The About window.
#pragma once

#include "controls/fixed_dialog.h"

namespace ksm {

/// Says what the program is, and where more is to be found. Addresses can be selected and copied.
class AboutForm : public FixedDialog {
    Q_OBJECT

public:
    explicit AboutForm(QWidget* owner);

private:
    void Form_Load();
    void Command1_Click();
};

} // namespace ksm
