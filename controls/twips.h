// Measures that are given in twips.
#pragma once

#include <QRect>

namespace ksm {

/// Pixels for a measure in twips (15 to the pixel), rounded to the nearest.
constexpr int FromTwips(int twips) { return twips >= 0 ? (twips + 7) / 15 : -((-twips + 7) / 15); }

constexpr QRect TwipsRect(int left, int top, int width, int height) {
    return {FromTwips(left), FromTwips(top), FromTwips(width), FromTwips(height)};
}

} // namespace ksm
