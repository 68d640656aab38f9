// A small upright scroll bar that is used as a spinner.
#pragma once

#include "controls/framed_bar.h"

namespace ksm {

/// Two arrows and no room for a thumb: one step for a click, an arrow key or, with the focus, a
/// wheel notch; a held mouse button repeats. Each half of the bar is one button; the arrow of a
/// direction in which the range ends is grey.
class SpinBar : public FramedBar {
    Q_OBJECT

public:
    using FramedBar::FramedBar;

signals:
    /// A mouse button or a key is held on the bar: all of its steps are one thing that is done.
    void HoldBegan();
    /// A key is still held: its repetition looked like a release.
    void HoldResumed();
    void HoldEnded();

protected:
    void focusOutEvent(QFocusEvent* event) override;
    void hideEvent(QHideEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void keyReleaseEvent(QKeyEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void paintEvent(QPaintEvent* event) override;
    void timerEvent(QTimerEvent* event) override;
    void wheelEvent(QWheelEvent* event) override;

private:
    /// The step that a button at this place stands for.
    SliderAction StepAt(QPoint place) const;
    void Hold(SliderAction action);
    void SetHeld(bool held);
    bool CanBeHeld() const;
    void PaintHalf(QPainter& painter, SliderAction action) const;

    SliderAction pressed = SliderNoAction; ///< the button under the mouse button
    bool isHeld = false;
};

} // namespace ksm
