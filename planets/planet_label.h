// A planet's name on the board, which can be dragged.
#pragma once

#include "controls/caption_label.h"

namespace ksm {

class ShapeFrame;

/// Reports a drag by mouse, from press to release, and the keys that do the same by keyboard. A
/// drag never leaves the window, and the label gets no click.
class PlanetLabel : public CaptionLabel {
    Q_OBJECT

public:
    /// The name takes its own width, up to `longest` pixels; an empty row takes all of it, so that
    /// it can be seen while it is dragged.
    PlanetLabel(const QString& objectName, QPoint place, int longest, QWidget* parent);

    void SetPlanet(const QString& name);

    /// Does what Space or Return does.
    void Activate() override;

signals:
    void Pressed();
    /// The pointer moved to this place of the screen with the button held.
    void DraggedTo(QPoint global);
    void DroppedAt(QPoint global);
    /// Something came between: a window or a menu opened, or the release of the button was lost.
    void DragCancelled();

    /// Space or Return: picks the planet up or sets it down.
    void Activated();
    /// An arrow key: to the next (+1) or the previous (-1).
    void Stepped(int step);
    /// Escape, or the focus left.
    void Abandoned();

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;
    void focusOutEvent(QFocusEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;

private:
    void MoveOutline(QPoint global);
    void StopDragging();
    void CancelDrag();

    int longestName;
    bool dragged = false;
    QPoint grip; ///< where the pointer holds the label
    ShapeFrame* outline = nullptr;
};

} // namespace ksm
