// On which kind of display the windows open.
#pragma once

namespace ksm {

/// A Wayland program cannot place its own windows. Where the session offers X11 as well, this picks
/// it, unless the user chose a platform. To be called before the application object exists.
void ChooseDisplay();

/// Until ForgetMissingDisplay: ends the program with one sentence and status 1 where Qt, which
/// finds no display that it can use, would abort it.
void ExplainMissingDisplay();
/// To be called with an application object, which has a display.
void ForgetMissingDisplay();

/// To be called with an application object.
bool IsWayland();

} // namespace ksm
