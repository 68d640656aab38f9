#include "app/fixed_size_guard.h"

#include <QResizeEvent>
#include <QWidget>
#include <QWindow>

namespace ksm {

namespace {

bool SaysMaximised(const QWindow& window) {
    return window.windowStates().testAnyFlags(Qt::WindowMaximized | Qt::WindowFullScreen);
}

/// Qt would keep a window from the size that it has to fill.
void LiftLimits(QWindow& window) {
    window.setMinimumSize(QSize(0, 0));
    window.setMaximumSize(QSize(QWIDGETSIZE_MAX, QWIDGETSIZE_MAX));
}

/// Whether the event is to go no further.
bool Guard(QWindow& window, const QSize& size, const QEvent& event) {
    // Whether the desktop holds it maximised, whatever it has asked for since.
    constexpr auto Held = "HeldMaximised";
    switch (event.type()) {
    case QEvent::Expose:
        LiftLimits(window);
        break;
    case QEvent::Resize:
        if (static_cast<const QResizeEvent&>(event).size() != size &&
            !window.property(Held).toBool()) {
            window.resize(size);
            return true;
        }
        break;
    case QEvent::WindowStateChange:
        window.setProperty(Held, SaysMaximised(window));
        [[fallthrough]];
    // The desktop may not maximise it; then the pointer comes back from the button.
    case QEvent::Enter:
        if (SaysMaximised(window)) {
            const auto restore = [&window] { window.setWindowStates(Qt::WindowNoState); };
            QMetaObject::invokeMethod(&window, restore, Qt::QueuedConnection);
        }
        break;
    default:
        break;
    }
    return false;
}

} // namespace

bool FixedSizeGuard::eventFilter(QObject* watched, QEvent* event) {
    auto* window = watched->isWindowType() ? static_cast<QWindow*>(watched) : nullptr;
    const QWidget* widget = window && window->handle() ? QWidget::find(window->winId()) : nullptr;
    const bool isFixed = widget != nullptr && widget->minimumSize() == widget->maximumSize();
    return isFixed && Guard(*window, widget->minimumSize(), *event);
}

} // namespace ksm
