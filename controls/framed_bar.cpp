#include "controls/framed_bar.h"

#include "controls/element_name.h"

#include <QPainter>

namespace ksm {

FramedBar::FramedBar(const QString& objectName, const QRect& place, QWidget* parent)
    : QScrollBar(Qt::Vertical, parent) {
    NameAndPlace(*this, objectName, place);
    setFocusPolicy(Qt::TabFocus);
    setContextMenuPolicy(Qt::NoContextMenu); // a right click opens the window's menu, not Qt's
    // A notch of the wheel moves no more than a page: here a single step.
    setSingleStep(1);
    setPageStep(1);
}

void FramedBar::SetRange(int minimum, int maximum, int value) {
    setRange(minimum, maximum);
    setValue(value);
}

QColor FramedBar::FrameColour() const {
    return hasFocus() ? palette().color(QPalette::Highlight)
                      : palette().color(QPalette::Window).darker(150);
}

void FramedBar::paintEvent(QPaintEvent* event) {
    QScrollBar::paintEvent(event);
    QPainter painter(this);
    // Half a pixel inwards, which keeps the line on whole pixels at any scale.
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(FrameColour());
    painter.drawRect(QRectF(rect()).adjusted(0.5, 0.5, -0.5, -0.5));
}

} // namespace ksm
