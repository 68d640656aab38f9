// A line that was drawn in the trade diagram.
#pragma once

#include "model/bounds.h"
#include "model/colour.h"
#include "model/point.h"

#include <vector>

namespace ksm {

/// Pixels of the trade panel.
struct Stroke {
    Point From;
    Point To;
    ksm::Colour Colour;
    int Width = 0;

    bool operator==(const Stroke&) const = default;
};

/// In the order of drawing: a later stroke covers an earlier one.
using Strokes = std::vector<Stroke>;

/// One for each agreement, and two for the pair under Economic Independence.
inline constexpr int MaxStrokes = MaxAgreements + 2;

} // namespace ksm
