// On which kind of display the windows open.
#pragma once

namespace ksm {

/// A Wayland program cannot place its own windows. Where the session offers X11 as well, this picks
/// it, unless the user chose a platform. To be called before the application object exists.
void ChooseDisplay();

} // namespace ksm
