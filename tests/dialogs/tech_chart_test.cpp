#include "dialogs/tech_chart.h"

#include <algorithm>
#include <gtest/gtest.h>

namespace ksm {
namespace {

struct ChartCase {
    const TechChart& Chart;
    std::vector<std::ptrdiff_t> Lines;  ///< Line1, Line4, Line5, Line6 and pairs of strokes
    std::vector<std::ptrdiff_t> Fields; ///< yellow, green, blue and red boxes
    std::ptrdiff_t NarrowBoxes;
};

const ChartCase Charts[]{{StandardChart(), {29, 9, 2, 3, 34}, {5, 5, 5, 5}, 0},
                         {ExpansionChart(), {34, 9, 3, 9, 42}, {6, 6, 7, 5}, 2}};

TEST(TechCharts, HaveTheirNumbersOfEverything) {
    for (const auto& [chart, lines, fields, narrow] : Charts) {
        EXPECT_EQ(
            (std::vector{std::ssize(chart.Line1), std::ssize(chart.Line4), std::ssize(chart.Line5),
                         std::ssize(chart.Line6), std::ssize(StrokePairs(chart))}),
            lines);
        std::vector<std::ptrdiff_t> found;
        for (const auto field :
             {TechField::Yellow, TechField::Green, TechField::Blue, TechField::Red}) {
            found.push_back(std::ranges::count(chart.Label1, field, &Technology::Field));
        }
        EXPECT_EQ(found, fields);
        EXPECT_EQ(std::ranges::count(chart.Label1, NarrowWidth, &Technology::Width), narrow);
    }
}

/// How many lines end on the edge of the box, each of them in an arrowhead of its colour.
int LinesInto(const Technology& box, const TechChart& chart) {
    int found = 0;
    for (const auto* lines : {&chart.Line1, &chart.Line4, &chart.Line5, &chart.Line6}) {
        for (const auto& [ink, from, to] : *lines) {
            const bool down = to.Y == box.Place.Y && from.X == to.X;
            const bool right = to.X == box.Place.X && from.Y == to.Y;
            const bool within = to.X >= box.Place.X && to.X <= box.Place.X + box.Width &&
                                to.Y >= box.Place.Y && to.Y <= box.Place.Y + TechBoxHeight;
            if (!within || (!down && !right)) {
                continue;
            }
            ++found;
            const auto mark = std::ranges::find(chart.Marks, to, &ChartMark::At);
            EXPECT_TRUE(mark != chart.Marks.end() && mark->Ink == ink &&
                        mark->Shape == (down ? MarkShape::ArrowDown : MarkShape::ArrowRight));
        }
    }
    return found;
}

TEST(TechCharts, LeadALineFromEveryPrerequisite) {
    for (const auto& [chart, lines, fields, narrow] : Charts) {
        std::ptrdiff_t joins = 1; // in the legend
        for (const Technology& technology : chart.Label1) {
            SCOPED_TRACE(technology.Name);
            const bool all = technology.Rule == TechRule::AllOf;
            joins += all ? 1 : 0;
            EXPECT_EQ(LinesInto(technology, chart),
                      all ? 1 : static_cast<int>(technology.Sources.size()));
            for (const int source : technology.Sources) {
                EXPECT_LT(chart.Label1.at(static_cast<std::size_t>(source)).Place.Y,
                          technology.Place.Y)
                    << "earlier technologies stand higher";
            }
        }
        EXPECT_EQ(std::ranges::count(chart.Marks, MarkShape::Diamond, &ChartMark::Shape), joins);
    }
}

} // namespace
} // namespace ksm
