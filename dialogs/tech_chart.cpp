// What stands on the two technology charts. They have their technologies and the lines between them
// in common; the expansion adds a row.
#include "dialogs/tech_chart.h"

#include <algorithm>
#include <array>
#include <initializer_list>
#include <optional>
#include <span>

namespace ksm {

namespace {

using enum TechField;

constexpr int NarrowWidth = 71;

/// Where a line runs through the gap between two rows; `Last` above the row of the expansion.
enum class Level : std::uint8_t { Upper, Middle, Lower, Last };

/// How the rows of boxes lie, which are numbered from 0.
struct Rows {
    int First = 0; ///< top of row 0, in pixels
    int Pitch = 0;
    std::array<int, 4> Levels{}; ///< from the upper edge of a gap

    int Top(int row) const { return First + row * Pitch; }
    int Side(int row) const { return Top(row) + TechBoxHeight / 2; }
    int Bottom(int row) const { return Top(row) + TechBoxHeight; }
    /// A level of the gap above a row.
    int Above(int row, Level level) const {
        return Bottom(row - 1) + Levels.at(static_cast<std::size_t>(level));
    }
};

struct BoxDesign {
    std::string_view Name;
    TechField Field = Green; ///< also the column
    int Row = 0;
    std::vector<int> Sources{};
    std::optional<Level> Diamond{}; ///< where all sources meet, if all are needed
    std::optional<int> Left{};      ///< of a narrow box, which stands in no column
};

// clang-format off
// The standard rules have the first 20.
const std::array<BoxDesign, 24>& Boxes() {
    static const std::array<BoxDesign, 24> boxes{{
        /*  0 */ {"ENVIRO COMPENSATOR", Yellow, 0},
        /*  1 */ {"PELLAM TOOLS", Yellow, 1, {0}},
        /*  2 */ {"MICRO TECHNOLOGY", Yellow, 2, {0, 1}},
        /*  3 */ {"ORBITAL FOUNDRY", Yellow, 3, {2, 12}, Level::Lower},
        /*  4 */ {"SEED CULTURES", Green, 0},
        /*  5 */ {"VITAL SERUM", Green, 1, {0, 4}},
        /*  6 */ {"SLEEP CHAMBERS", Green, 2, {5}},
        /*  7 */ {"UNITED GUILDS", Yellow, 4, {3, 8}},
        /*  8 */ {"MIND LINK", Green, 3, {2, 6}, Level::Upper},
        /*  9 */ {"LIVING HULLS", Green, 4, {8}},
        /* 10 */ {"ION SAILS", Blue, 0},
        /* 11 */ {"DRIFT SENSORS", Blue, 1, {10}},
        /* 12 */ {"PHASE DRIVE", Blue, 2, {1, 11}, Level::Lower},
        /* 13 */ {"FOLD BEACONS", Blue, 3, {12}},
        /* 14 */ {"JUMP CORRIDORS", Blue, 4, {3, 13}, Level::Lower},
        /* 15 */ {"COIL GUNS", Red, 0},
        /* 16 */ {"PRISM SHIELDS", Red, 1, {10, 15}},
        /* 17 */ {"ARC LANCES", Red, 2, {11, 16}},
        /* 18 */ {"SIEGE MORTARS", Red, 3, {11, 17}},
        /* 19 */ {"STAR BREAKER", Red, 4, {13, 16, 18}, Level::Upper},
        /* 20 */ {"SPORE CLOUDS", Green, 5, {9}},
        /* 21 */ {"GATE RINGS", Blue, 5, {14, 19}, Level::Last, 310},
        /* 22 */ {"VOID SIPHON", Blue, 5, {19}, {}, 400},
        /* 23 */ {"WORLD GARDENS", Yellow, 5, {7, 9}, Level::Last},
    }};
    return boxes;
}
// clang-format on

constexpr int LeftOf(TechField column) { return 31 + 138 * static_cast<int>(column); }

using Corners = std::initializer_list<Point>;

void AddWay(std::vector<Connector>& lines, Colour ink, Corners corners) {
    for (const Point* from = corners.begin(); from + 1 != corners.end(); ++from) {
        lines.push_back({ink, from[0], from[1]});
    }
}

// The lines from column to column that both charts have. A line that ends beside a diamond enters
// it.
void AddWays(TechChart& chart, const Rows& rows) {
    const auto top = [&](int row) { return rows.Top(row); };
    const auto side = [&](int row) { return rows.Side(row); };
    const auto upper = [&](int row) { return rows.Above(row, Level::Upper); };
    const auto middle = [&](int row) { return rows.Above(row, Level::Middle); };
    const auto lower = [&](int row) { return rows.Above(row, Level::Lower); };
    const auto orange = [&](Corners corners) { AddWay(chart.Line1, colour::Orange, corners); };
    const auto blue = [&](Corners corners) { AddWay(chart.Line4, colour::Blue, corners); };
    orange({{169, side(0)}, {138, side(0)}, {138, side(2)}, {169, side(2)}});
    orange({{138, middle(1)}, {91, middle(1)}, {91, top(1)}});
    orange({{207, lower(2)}, {338, lower(2)}});
    orange({{207, upper(3)}, {76, upper(3)}});
    orange({{207, lower(4)}, {338, lower(4)}});
    blue({{345, middle(1)}, {461, middle(1)}, {461, top(1)}});
    blue({{345, upper(2)}, {461, upper(2)}, {461, top(2)}});
    blue({{414, upper(2)}, {414, middle(3)}, {461, middle(3)}, {461, top(3)}});
    blue({{345, lower(3)}, {214, lower(3)}});
    blue({{345, upper(4)}, {476, upper(4)}});
    AddWay(chart.Line5, colour::DarkGreen, {{69, middle(4)}, {185, middle(4)}, {185, top(4)}});
    AddWay(chart.Line6, colour::Red,
           {{522, side(1)}, {538, side(1)}, {538, upper(4)}, {490, upper(4)}});

    using enum MarkShape;
    chart.Marks = {
        {ArrowRight, {169, side(2)}, colour::Orange}, {ArrowDown, {91, top(1)}, colour::Orange},
        {ArrowDown, {461, top(1)}, colour::Blue},     {ArrowDown, {461, top(2)}, colour::Blue},
        {ArrowDown, {461, top(3)}, colour::Blue},     {ArrowDown, {185, top(4)}, colour::DarkGreen},
        {Diamond, LegendSample, colour::Black},
    };
}

// The black line into a box from the one above it, with its arrowhead, and a diamond on the way.
void AddColumnLine(TechChart& chart, const Rows& rows, const BoxDesign& box) {
    const int x = LeftOf(box.Field) + TechBoxWidth / 2;
    const Point from{x, rows.Bottom(box.Row - 1)};
    const Point to{x, rows.Top(box.Row)};
    if (box.Diamond) {
        const int y = rows.Above(box.Row, *box.Diamond);
        chart.Line1.push_back({colour::Black, from, {x, y - StrokeSize}});
        chart.Line1.push_back({colour::Black, {x, y + StrokeSize}, to});
        chart.Marks.push_back({MarkShape::Diamond, {x, y}, colour::Black});
    } else {
        chart.Line1.push_back({colour::Black, from, to});
    }
    chart.Marks.push_back({MarkShape::ArrowDown, to, colour::Black});
}

TechBox BoxOf(const BoxDesign& box, const Rows& rows) {
    return {.Name = box.Name,
            .Field = box.Field,
            .Place = {box.Left.value_or(LeftOf(box.Field)), rows.Top(box.Row)},
            .Rule = box.Diamond ? TechRule::AllOf : TechRule::AnyOf,
            .Sources = box.Sources,
            .Width = box.Left ? NarrowWidth : TechBoxWidth};
}

TechChart MakeChart(const char* title, std::span<const BoxDesign> boxes, const Rows& rows) {
    TechChart chart;
    chart.Title = title;
    AddWays(chart, rows);
    for (const BoxDesign& box : boxes) {
        chart.Label1.push_back(BoxOf(box, rows));
        const auto isAbove = [&](int source) {
            return boxes[static_cast<std::size_t>(source)].Field == box.Field;
        };
        if (std::ranges::any_of(box.Sources, isAbove)) {
            AddColumnLine(chart, rows, box);
        }
    }
    return chart;
}

TechChart MakeExpansion() {
    TechChart chart = MakeChart("Korvane Astrell Technology Flowchart (Corrin's End)", Boxes(),
                                {.First = 8, .Pitch = 80, .Levels = {12, 23, 27, 20}});
    AddWay(chart.Line5, colour::DarkGreen, {{69, 381}, {200, 381}});
    AddWay(chart.Line6, colour::Red, {{445, 344}, {414, 344}, {414, 381}, {352, 381}});
    AddWay(chart.Line6, colour::Red, {{483, 361}, {483, 389}, {435, 389}, {435, 408}});
    chart.Marks.push_back({MarkShape::ArrowDown, {435, 408}, colour::Red});
    return chart;
}

} // namespace

const TechChart& StandardChart() {
    static const TechChart chart =
        MakeChart("Korvane Astrell Technology Flowchart (Standard)", std::span(Boxes()).first(20),
                  {.First = 14, .Pitch = 96, .Levels = {19, 31, 41, 0}});
    return chart;
}

const TechChart& ExpansionChart() {
    static const TechChart chart = MakeExpansion();
    return chart;
}

} // namespace ksm
