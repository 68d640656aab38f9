#include "controls/even_drawing.h"

#include <QPainter>
#include <QtMath>

#include <algorithm>

namespace ksm {

namespace {

// A rectangle around two points of the device, `width` pixels of it thick.
QRect Around(QPointF from, QPointF to, int width) {
    const auto begin = [&](double one, double other) {
        return qRound(std::min(one, other) - width / 2.0);
    };
    const auto length = [&](double one, double other) { return qRound(qAbs(one - other)) + width; };
    return {begin(from.x(), to.x()), begin(from.y(), to.y()), length(from.x(), to.x()),
            length(from.y(), to.y())};
}

} // namespace

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
    const QRect covered = Around(toDevice.map(from + middle), toDevice.map(to + middle), thickness);
    painter.setRenderHint(QPainter::Antialiasing, false);
    painter.fillRect(toDevice.inverted().mapRect(QRectF(covered)), colour);
}

} // namespace ksm
