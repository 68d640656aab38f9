// What assistive technology hears of the controls.
#pragma once

namespace ksm {

/// Lets a label with a heading announce it with its caption ("Influence, Player 3: 7"), a drop-down
/// list its heading and its choice, and a bar the count that it stands for. Nothing is made until
/// assistive technology asks.
void InstallAccessibleNames();

} // namespace ksm
