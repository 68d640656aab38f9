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
        return FellThrough(control);
    case QEvent::KeyPress:
        return RunsOn(control, static_cast<QKeyEvent&>(*event));
    case QEvent::KeyRelease:
        releaseTime = static_cast<QKeyEvent&>(*event).timestamp();
        return false;
    default:
        return false;
    }
}

void InputGuard::NotePress(QWidget& control, const QMouseEvent& event) {
    // A press that is handed on to the parents is still the first one's.
    if (event.timestamp() != pressTime) {
        pressed = &control;
        pressTime = event.timestamp();
    }
}

bool InputGuard::FellThrough(const QWidget& control) const {
    return pressed == nullptr || (pressed != &control && !control.isAncestorOf(pressed));
}

bool InputGuard::RunsOn(QWidget& control, const QKeyEvent& event) {
    // Not every repetition is known as one. Nobody presses a key in the instant of releasing it.
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
