// The technology charts as plain data: which technology leads to which, and how that is drawn.
#pragma once

#include "model/colour.h"
#include "model/point.h"

#include <cstdint>
#include <string_view>
#include <vector>

namespace ksm {

// All measures of a chart are pixels of its window.
inline constexpr int ChartWidth = 553;
inline constexpr int ChartHeight = 475;
inline constexpr int TechBoxWidth = 77;
inline constexpr int TechBoxHeight = 33;
/// How far a stroke of an arrowhead or diamond reaches to the side, and up or down.
inline constexpr int StrokeSize = 7;

/// Centre of the diamond that explains the diamonds.
inline constexpr Point LegendSample{38, 459};

/// The four kinds of technology, each with its own cost; in the order of their columns.
enum class TechField : std::uint8_t { Green, Yellow, Blue, Red };

enum class TechRule : std::uint8_t { AnyOf, AllOf };

struct TechBox {
    std::string_view Name;
    TechField Field = TechField::Green;
    Point Place; ///< top left corner of the box
    TechRule Rule = TechRule::AnyOf;
    std::vector<int> Sources{}; ///< indices of what leads here; none: free from the start
    int Width = TechBoxWidth;
};

/// A straight piece of the way from a technology to those it leads to. Pieces that touch belong
/// together.
struct Connector {
    Colour Ink;
    Point From;
    Point To;
};

/// An arrowhead stands at its tip, on the edge of the box that it enters; a diamond at its centre.
/// All that enters a diamond is needed for what leaves it below.
enum class MarkShape : std::uint8_t { ArrowDown, ArrowRight, Diamond };

struct ChartMark {
    MarkShape Shape = MarkShape::ArrowDown;
    Point At;
    Colour Ink;
};

/// Connectors straight down are black; what leaves to the side has the colour of the field it comes
/// from (orange for yellow). Later elements are drawn over earlier ones, and `Line1` last.
struct TechChart {
    const char* Title = "";
    std::vector<TechBox> Label1;
    std::vector<Connector> Line1;
    std::vector<Connector> Line4;
    std::vector<Connector> Line5;
    std::vector<Connector> Line6;
    std::vector<ChartMark> Marks;
};

const TechChart& StandardChart();
const TechChart& ExpansionChart();

} // namespace ksm
