// Values of the game as Qt has them.
#pragma once

#include "model/colour.h"
#include "model/point.h"

#include <QColor>
#include <QPoint>

namespace ksm {

inline QColor ToQColor(Colour colour) { return {colour.Red, colour.Green, colour.Blue}; }

inline QPoint ToQPoint(Point point) { return {point.X, point.Y}; }

} // namespace ksm
