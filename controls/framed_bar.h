// An upright scroll bar that stands alone, with a frame of its own.
#pragma once

#include <QScrollBar>

#include <optional>

namespace ksm {

/// The platform's scroll bar in a frame, which turns blue while the bar has the focus. Narrow
/// bars (from 10 pixels) keep both arrows.
class FramedBar : public QScrollBar {
    Q_OBJECT

public:
    FramedBar(const QString& objectName, const QRect& place, QWidget* parent);

    /// Range, and where the bar stands before anyone uses it.
    void SetRange(int minimum, int maximum, int value);

    /// What the positions stand for: a count that is `atZero` at position 0 and falls by one a
    /// step, from `most` to `least`.
    struct Count {
        int AtZero;
        int Least;
        int Most;
    };
    /// Assistive technology then hears and sets the count instead of the position.
    void SetCount(const Count& count) { announced = count; }
    const std::optional<Count>& AnnouncedCount() const { return announced; }

protected:
    void paintEvent(QPaintEvent* event) override;

    QColor FrameColour() const;

private:
    std::optional<Count> announced;
};

} // namespace ksm
