// A planet's name on the board, which can be dragged.
#pragma once

#include "controls/caption_label.h"

namespace ksm {

class ShapeFrame;

/// Reports a drag: by mouse from press to release, or by keyboard from Return (or Space) to Return.
/// It never leaves the window, and the label gets no click.
class PlanetLabel : public CaptionLabel {
    Q_OBJECT

public:
    /// The name takes its own width, up to `longest` pixels; an empty row takes all of it, so that
    /// it can be seen while it is dragged.
    PlanetLabel(const QString& objectName, QPoint place, int longest, QWidget* parent);

    /// Another planet in the row ends what mouse or keyboard do with the old one.
    void SetPlanet(const QString& name);

    /// Picks the planet up or, the second time, sets it down. An empty row has nothing to pick up.
    void Activate() override;

signals:
    /// The pointer moved to this place of the screen with the button held.
    void DraggedTo(QPoint global);
    void DroppedAt(QPoint global);

    /// The keyboard picked the planet up, moved it to the next (+1) or previous (-1) owner, dropped
    /// it there, or put it back.
    void PickedUp();
    void CarriedBy(int step);
    void SetDown();
    void PutBack();

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;
    void focusOutEvent(QFocusEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;

private:
    void MoveOutline(QPoint global);
    void StopCarrying();
    void StopDragging();

    int longestName;
    bool dragged = false;
    bool carried = false;
    QPoint grip; ///< where the pointer holds the label
    ShapeFrame* outline = nullptr;
};

} // namespace ksm
