// A drawn frame or line that decorates a panel.
#pragma once

#include <QBrush>
#include <QWidget>

namespace ksm {

/// A rectangle drawn one pixel wide, its corners rounded by `radius` pixels; the mouse passes
/// through to what lies below.
class ShapeFrame : public QWidget {
    Q_OBJECT

public:
    ShapeFrame(const QString& objectName, const QRect& place, int radius, QWidget* parent);

    void SetFill(const QColor& colour) { fill = colour; }

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    int cornerRadius;
    QBrush fill;
};

/// A black line, `place` wide and high, and as thick everywhere at any scale.
class LineControl : public QWidget {
    Q_OBJECT

public:
    LineControl(const QString& objectName, const QRect& place, QWidget* parent);

protected:
    void paintEvent(QPaintEvent* event) override;
};

} // namespace ksm
