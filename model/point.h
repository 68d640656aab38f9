// A place in a window or panel.
#pragma once

namespace ksm {

/// Pixels from the left and upper edge.
struct Point {
    int X = 0;
    int Y = 0;

    bool operator==(const Point&) const = default;
};

} // namespace ksm
