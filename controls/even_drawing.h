// Drawing that looks the same everywhere at any scale.
#pragma once

#include <QPointF>

class QColor;
class QPainter;

namespace ksm {

/// The place nearest to this one at which a pixel of the device begins. What is drawn from there
/// does not depend on where it is drawn, though a scale such as 1.25 divides pixels.
QPointF OnDevicePixel(const QPainter& painter, QPointF place);

/// Draws a line between the middles of two pixels. A level or upright one covers whole pixels of
/// the device, and as much beyond its ends as on its sides.
void DrawEvenLine(QPainter& painter, QPoint from, QPoint to, int width, const QColor& colour);

} // namespace ksm
