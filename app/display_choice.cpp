#include "app/display_choice.h"

#include <QByteArray>
#include <QtGlobal>

namespace ksm {

void ChooseDisplay() {
    const bool chosen = qEnvironmentVariableIsSet("QT_QPA_PLATFORM");
    const bool wayland = qEnvironmentVariableIsSet("WAYLAND_DISPLAY");
    const bool x11 = qEnvironmentVariableIsSet("DISPLAY");
    if (!chosen && wayland && x11) {
        qputenv("QT_QPA_PLATFORM", QByteArray("xcb"));
    }
}

} // namespace ksm
