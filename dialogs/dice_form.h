// The dice roller.
#pragma once

#include "controls/fixed_dialog.h"
#include "dialogs/dice_roll.h"

#include <functional>

namespace ksm {

class CaptionLabel;
class SpinBar;

/// Rolls one to seven ten-sided dice and shows them where they fell. Opens right of its owner with
/// one die, and forgets everything when it is closed. Each roll begins with a new seed: the time of
/// day unless `seed` is given.
class DiceForm : public FixedDialog {
    Q_OBJECT

public:
    explicit DiceForm(QWidget* owner, std::function<unsigned()> seed = TimeOfDay);

private:
    static unsigned TimeOfDay();
    void Form_Load();
    void Scroll_Change();
    void Command1_Click();

    std::function<unsigned()> newSeed;
    std::array<CaptionLabel*, MaxDice> Label1{};
    CaptionLabel* Coun = nullptr;
    SpinBar* Scroll = nullptr;
    int dice = 1; ///< how many are rolled
};

} // namespace ksm
