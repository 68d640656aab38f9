#include "app/display_choice.h"

#include <QByteArray>
#include <QGuiApplication>

#include <cstdio>
#include <cstdlib>

namespace ksm {

namespace {

void ExplainFatal(QtMsgType type, const QMessageLogContext&, const QString& message) {
    if (type == QtFatalMsg) {
        std::fputs("ksm: There is no display that the window can be shown on; start the program on "
                   "a desktop.\n",
                   stderr);
        std::_Exit(EXIT_FAILURE);
    }
    // What Qt says by itself on the way is in the sentence; what somebody asked it to tell is not.
    if (type == QtDebugMsg) {
        std::fputs(qUtf8Printable(message + '\n'), stderr);
    }
}

} // namespace

void ChooseDisplay() {
    const bool chosen = qEnvironmentVariableIsSet("QT_QPA_PLATFORM");
    const bool wayland = qEnvironmentVariableIsSet("WAYLAND_DISPLAY");
    const bool x11 = qEnvironmentVariableIsSet("DISPLAY");
    if (!chosen && wayland && x11) {
        qputenv("QT_QPA_PLATFORM", QByteArray("xcb"));
    }
}

void ExplainMissingDisplay() { qInstallMessageHandler(ExplainFatal); }

void ForgetMissingDisplay() { qInstallMessageHandler(nullptr); }

bool IsWayland() { return QGuiApplication::platformName().startsWith("wayland"); }

} // namespace ksm
