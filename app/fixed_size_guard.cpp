#include "app/fixed_size_guard.h"

#include <QPlatformSurfaceEvent>
#include <QWidget>
#include <QWindow>

namespace ksm {

namespace {

/// Takes the limits of the window's size away or gives them back, unseen by its widget.
void SetLimits(QWindow& window, bool limited) {
    if (const QWidget* widget = QWidget::find(window.winId())) {
        window.setMinimumSize(limited ? widget->minimumSize() : QSize(0, 0));
        window.setMaximumSize(limited ? widget->maximumSize()
                                      : QSize(QWIDGETSIZE_MAX, QWIDGETSIZE_MAX));
    }
}

} // namespace

bool FixedSizeGuard::eventFilter(QObject* watched, QEvent* event) {
    if (!watched->isWindowType()) {
        return false;
    }
    auto* window = static_cast<QWindow*>(watched);
    switch (event->type()) {
    case QEvent::PlatformSurface:
        if (static_cast<QPlatformSurfaceEvent*>(event)->surfaceEventType() ==
            QPlatformSurfaceEvent::SurfaceCreated) {
            Watch(window);
        }
        break;
    // The desktop has maximised it; or it has not, and the pointer is back from the button.
    case QEvent::WindowStateChange:
    case QEvent::Enter:
        if (window->windowStates().testAnyFlags(Qt::WindowMaximized | Qt::WindowFullScreen)) {
            const auto restore = [window] { window->setWindowStates(Qt::WindowNoState); };
            QMetaObject::invokeMethod(window, restore, Qt::QueuedConnection);
        }
        break;
    default:
        break;
    }
    return false;
}

void FixedSizeGuard::Watch(QWindow* window) {
    // The button announces what it asks for before the desktop can answer.
    connect(window, &QWindow::windowStateChanged, this,
            [window](Qt::WindowState state) { SetLimits(*window, state != Qt::WindowMaximized); });
}

} // namespace ksm
