#include "controls/spin_bar.h"

#include "controls/even_drawing.h"
#include "controls/input.h"

#include <QApplication>
#include <QMouseEvent>
#include <QPainter>

namespace ksm {

namespace {

// Milliseconds that a button is held before it repeats, and between repetitions. Slow enough that
// a long click stays one step.
constexpr int RepeatDelay = 500;
constexpr int RepeatInterval = 120;

} // namespace

QAbstractSlider::SliderAction SpinBar::StepAt(QPoint place) const {
    if (!rect().contains(place)) {
        return SliderNoAction;
    }
    return place.y() < height() / 2 ? SliderSingleStepSub : SliderSingleStepAdd;
}

void SpinBar::Hold(SliderAction action) {
    pressed = action;
    setRepeatAction(action, RepeatDelay, RepeatInterval);
    update();
    if (action == SliderNoAction) {
        SetHeld(false);
    }
}

void SpinBar::SetHeld(bool held) {
    if (held != isHeld) {
        isHeld = held;
        held ? emit HoldBegan() : emit HoldEnded();
    }
}

// A window or a menu that opened meanwhile gets the release of the mouse button.
bool SpinBar::CanBeHeld() const {
    return TakesInput(*this) && QApplication::activePopupWidget() == nullptr &&
           QGuiApplication::mouseButtons().testFlag(Qt::LeftButton);
}

void SpinBar::mousePressEvent(QMouseEvent* event) {
    if (event->button() != Qt::LeftButton) {
        event->ignore();
        return;
    }
    const SliderAction action = StepAt(event->position().toPoint());
    SetHeld(true);
    triggerAction(action);
    Hold(action);
}

void SpinBar::mouseMoveEvent(QMouseEvent* event) {
    // Off its button a held mouse button rests; it never goes over to the other one.
    if (pressed != SliderNoAction && StepAt(event->position().toPoint()) != pressed) {
        Hold(SliderNoAction);
    }
}

void SpinBar::mouseReleaseEvent(QMouseEvent* event) {
    if (event->button() == Qt::LeftButton) {
        Hold(SliderNoAction);
    }
}

void SpinBar::timerEvent(QTimerEvent* event) {
    if (pressed != SliderNoAction && !CanBeHeld()) {
        Hold(SliderNoAction);
        return;
    }
    FramedBar::timerEvent(event);
}

// Whoever scrolls past means something else.
void SpinBar::wheelEvent(QWheelEvent* event) {
    if (hasFocus()) {
        FramedBar::wheelEvent(event);
    } else {
        event->ignore();
    }
}

void SpinBar::hideEvent(QHideEvent* event) {
    Hold(SliderNoAction);
    FramedBar::hideEvent(event);
}

void SpinBar::keyPressEvent(QKeyEvent* event) {
    if (event->isAutoRepeat() && !isHeld) {
        isHeld = true;
        emit HoldResumed();
    }
    SetHeld(true);
    FramedBar::keyPressEvent(event);
}

void SpinBar::keyReleaseEvent(QKeyEvent* event) {
    FramedBar::keyReleaseEvent(event);
    if (!event->isAutoRepeat()) {
        SetHeld(false);
    }
}

void SpinBar::focusOutEvent(QFocusEvent* event) {
    FramedBar::focusOutEvent(event);
    SetHeld(false);
}

void SpinBar::PaintHalf(QPainter& painter, SliderAction action) const {
    const bool up = action == SliderSingleStepSub;
    const int middle = height() / 2;
    const QRectF half = up ? QRectF(1, 1, width() - 2, middle - 1)
                           : QRectF(1, middle + 1, width() - 2, height() - middle - 2);
    const QColor face = palette().color(QPalette::Button);
    painter.fillRect(half, pressed == action ? face.darker(115) : face.lighter(105));

    const bool open = isEnabled() && value() != (up ? minimum() : maximum());
    const double tip = up ? -2 : 2;
    const QPointF centre = half.center() + OnDevicePixel(painter, {});
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Qt::NoPen);
    painter.setBrush(palette().color(open ? QPalette::Active : QPalette::Disabled, QPalette::Text));
    painter.drawPolygon(
        QPolygonF{centre + QPointF(-4, -tip), centre + QPointF(4, -tip), centre + QPointF(0, tip)});
    painter.setRenderHint(QPainter::Antialiasing, false);
}

void SpinBar::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    painter.fillRect(rect(), FrameColour());
    PaintHalf(painter, SliderSingleStepSub);
    PaintHalf(painter, SliderSingleStepAdd);
}

} // namespace ksm
