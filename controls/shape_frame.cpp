#include "controls/shape_frame.h"

#include "controls/even_drawing.h"

#include <QPaintEvent>
#include <QPainter>

namespace ksm {

ShapeFrame::ShapeFrame(const QString& objectName, const QRect& place, int radius, QWidget* parent)
    : QWidget(parent), cornerRadius(radius) {
    setObjectName(objectName);
    setGeometry(place);
    setAttribute(Qt::WA_TransparentForMouseEvents);
}

void ShapeFrame::paintEvent(QPaintEvent* event) {
    // It lies over all of a panel: what changes inside leaves the frame as it is.
    const int edge = cornerRadius + 1;
    if (fill.style() == Qt::NoBrush &&
        rect().adjusted(edge, edge, -edge, -edge).contains(event->rect())) {
        return;
    }
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(QColor(110, 110, 110));
    painter.setBrush(fill);
    painter.drawRoundedRect(QRectF(rect()).adjusted(0.5, 0.5, -0.5, -0.5), cornerRadius,
                            cornerRadius);
}

LineControl::LineControl(const QString& objectName, const QRect& place, QWidget* parent)
    : QWidget(parent) {
    setObjectName(objectName);
    setGeometry(place);
    setAttribute(Qt::WA_TransparentForMouseEvents);
}

void LineControl::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    DrawEvenLine(painter, rect().topLeft(), rect().bottomRight(), 1, Qt::black);
}

} // namespace ksm
