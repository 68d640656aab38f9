#include "dialogs/tech_chart.h"

namespace ksm {

Colour BoxColour(TechField field) {
    switch (field) {
    case TechField::Yellow:
        return colour::DarkYellow;
    case TechField::Green:
        return colour::DarkGreen;
    case TechField::Blue:
        return colour::Navy;
    case TechField::Red:
        return colour::DarkRed;
    }
    return colour::Black;
}

std::vector<StrokePair> StrokePairs(const TechChart& chart) {
    std::vector<StrokePair> pairs;
    for (const auto& [shape, at, ink] : chart.Marks) {
        const auto [x, y] = at;
        const int left = x - StrokeSize;
        const int right = x + StrokeSize;
        const int above = y - StrokeSize;
        const int below = y + StrokeSize;
        switch (shape) {
        case MarkShape::ArrowDown:
            pairs.push_back({at, {left, above}, {right, above}, ink});
            break;
        case MarkShape::ArrowRight:
            pairs.push_back({at, {left, above}, {left, below}, ink});
            break;
        case MarkShape::Diamond:
            pairs.push_back({{x, below}, {left, y}, {right, y}, ink});
            pairs.push_back({{x, above}, {left, y}, {right, y}, ink});
            break;
        }
    }
    return pairs;
}

} // namespace ksm
