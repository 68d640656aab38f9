// The icon of the program's windows.
#pragma once

#include <QIcon>

namespace ksm {

/// Drawn from the icon that the desktop shows, at any size, when somebody asks for one.
QIcon ProgramIcon();

} // namespace ksm
