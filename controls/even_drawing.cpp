#include "controls/even_drawing.h"

#include <QPainter>

#include <algorithm>

namespace ksm {

QPointF OnDevicePixel(const QPainter& painter, QPointF place) {
    const QTransform toDevice = painter.deviceTransform();
    return toDevice.inverted().map(QPointF(toDevice.map(place).toPoint()));
}

void DrawEvenLine(QPainter& painter, QPoint from, QPoint to, int width, const QColor& colour) {
    const QPointF middle(0.5, 0.5);
    if (from.x() != to.x() && from.y() != to.y()) {
        painter.setRenderHint(QPainter::Antialiasing);
        painter.setPen(QPen(colour, width, Qt::SolidLine, Qt::RoundCap));
        painter.drawLine(from + middle, to + middle);
        return;
    }
    const QTransform toDevice = painter.deviceTransform();
    const int thickness = std::max(1, qRound(width * toDevice.m11()));
    const QRectF line = QRectF(toDevice.map(from + middle), toDevice.map(to + middle)).normalized();
    const QPointF edge(thickness / 2.0, thickness / 2.0);
    // The size is rounded by itself, so that every line of a width is as thick.
    const QRect covered((line.topLeft() - edge).toPoint(),
                        line.size().toSize() + QSize(thickness, thickness));
    painter.setRenderHint(QPainter::Antialiasing, false);
    painter.fillRect(toDevice.inverted().mapRect(QRectF(covered)), colour);
}

} // namespace ksm
