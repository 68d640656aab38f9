#include "controls/input_guard.h"

#include <QKeyEvent>

namespace ksm {

bool InputGuard::eventFilter(QObject* watched, QEvent* event) {
    if (!watched->isWidgetType()) {
        return false;
    }
    auto& control = static_cast<QWidget&>(*watched);
    switch (event->type()) {
    case QEvent::MouseButtonPress:
        NotePress(control, static_cast<QMouseEvent&>(*event));
        return false;
    case QEvent::MouseButtonDblClick:
        return IsStrayDoubleClick(control);
    case QEvent::KeyPress:
        return IsStrayRepeat(control, static_cast<QKeyEvent&>(*event));
    case QEvent::KeyRelease:
        releaseTime = static_cast<QKeyEvent&>(*event).timestamp();
        return false;
    default:
        return false;
    }
}

void InputGuard::NotePress(QWidget& control, const QMouseEvent& event) {
    // A press that the control ignores is handed on to its parents, with the same time.
    if (event.timestamp() != pressTime) {
        pressed = &control;
        pressTime = event.timestamp();
    }
}

bool InputGuard::IsStrayDoubleClick(const QWidget& control) const {
    return pressed == nullptr || (pressed != &control && !control.isAncestorOf(pressed));
}

bool InputGuard::IsStrayRepeat(QWidget& control, const QKeyEvent& event) {
    // X11 sends a repetition as a release and a press at the same time, and Qt does not mark all of
    // them as repetitions. Nobody releases a key and presses it again at the same time.
    const bool isHeld = event.key() == heldKey;
    const bool isHidden =
        isHeld && !event.isAutoRepeat() && event.timestamp() == releaseTime && releaseTime != 0;
    if (isHidden || (isHeld && event.isAutoRepeat() && heldIn != control.window())) {
        return true;
    }
    if (!event.isAutoRepeat()) {
        heldKey = event.key();
        heldIn = control.window();
    }
    return false;
}

} // namespace ksm
