// A planet's name on the board, which can be dragged.
#pragma once

#include "controls/caption_label.h"

namespace ksm {

/// Reports what the mouse does to it from press to release, and the keys that do the same by
/// keyboard. The label gets no click.
class PlanetLabel : public CaptionLabel {
    Q_OBJECT

public:
    PlanetLabel(const QString& objectName, QPoint place, QWidget* parent);

    /// The name takes its own width, up to `longest` pixels; an empty row takes all of it, so that
    /// it can be seen while it is dragged.
    void SetPlanet(const QString& name, int longest);

    /// Does what Space or Return does.
    void Activate() override;

signals:
    /// The left button was pressed at this place of the label.
    void Pressed(QPoint place);
    // With the button held, in pixels of the screen.
    void MovedTo(QPoint global);
    void ReleasedAt(QPoint global);

    /// Space or Return: picks the planet up or sets it down.
    void Activated();
    /// An arrow key: to the next (+1) or the previous (-1).
    void Stepped(int step);
    /// Escape, or the focus left.
    void Abandoned();

protected:
    void focusOutEvent(QFocusEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;

private:
    int longestName = 0;
};

} // namespace ksm
