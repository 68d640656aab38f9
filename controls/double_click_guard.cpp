#include "controls/double_click_guard.h"

#include <QMouseEvent>

namespace ksm {

bool DoubleClickGuard::eventFilter(QObject* watched, QEvent* event) {
    const bool isPress = event->type() == QEvent::MouseButtonPress;
    if ((!isPress && event->type() != QEvent::MouseButtonDblClick) || !watched->isWidgetType()) {
        return false;
    }
    auto* control = static_cast<QWidget*>(watched);
    const quint64 time = static_cast<QMouseEvent*>(event)->timestamp();
    if (isPress) {
        if (time != pressTime) {
            pressed = control;
            pressTime = time;
        }
        return false;
    }
    const bool fellThrough = !pressed || (pressed != control && !control->isAncestorOf(pressed));
    return fellThrough;
}

} // namespace ksm
