// The dice roller.
#pragma once

#include "controls/fixed_dialog.h"
#include "dialogs/dice_roll.h"

namespace ksm {

class CaptionLabel;
class SpinBar;

/// Rolls one to seven ten-sided dice and shows them where they fell. Opens right of its owner with
/// one die, and forgets everything when it is closed. Each roll begins with a new seed, the
/// time of day.
class DiceForm : public FixedDialog {
    Q_OBJECT

public:
    explicit DiceForm(QWidget* owner);

private:
    void Form_Load();
    void Scroll_Change();
    void Command1_Click();

    std::array<CaptionLabel*, MaxDice> Label1{};
    CaptionLabel* Coun = nullptr;
    SpinBar* Scroll = nullptr;
};

} // namespace ksm
