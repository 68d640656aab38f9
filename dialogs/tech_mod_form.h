// The window of technology cost modifiers.
#pragma once

#include "controls/fixed_dialog.h"

#include <array>

namespace ksm {

class CaptionLabel;

/// Four bars that raise or lower the technology cost of one colour for everybody. It always opens
/// with every bar at its centre, whatever the modifiers in force: a modifier changes only when its
/// bar is moved.
class TechModForm : public FixedDialog {
    Q_OBJECT

public:
    explicit TechModForm(QWidget* owner);

signals:
    /// `index` 0 green, 1 blue, 2 red, 3 yellow; `value` 0..30, 15 leaves the cost as it is.
    void ModifierChanged(int index, int value);

private:
    void VScroll1_Change(int index, int position);

    std::array<CaptionLabel*, 4> TechModLabel{};
};

} // namespace ksm
