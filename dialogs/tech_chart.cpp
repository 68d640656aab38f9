#include "dialogs/tech_chart.h"

namespace ksm {

namespace {

StrokePair Pair(Point tip, Point first, Point second, Colour ink) {
    const auto stroke = [tip](Point offset) {
        return ChartStroke{tip, {tip.X + offset.X, tip.Y + offset.Y}};
    };
    return {stroke(first), stroke(second), ink};
}

} // namespace

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
    constexpr int s = StrokeSize;
    std::vector<StrokePair> pairs;
    for (const auto& [shape, at, ink] : chart.Marks) {
        switch (shape) {
        case MarkShape::ArrowDown:
            pairs.push_back(Pair(at, {-s, -s}, {s, -s}, ink));
            break;
        case MarkShape::ArrowRight:
            pairs.push_back(Pair(at, {-s, -s}, {-s, s}, ink));
            break;
        case MarkShape::Diamond:
            pairs.push_back(Pair({at.X, at.Y + s}, {-s, -s}, {s, -s}, ink));
            pairs.push_back(Pair({at.X, at.Y - s}, {-s, s}, {s, s}, ink));
            break;
        }
    }
    return pairs;
}

} // namespace ksm
