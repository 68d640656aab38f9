#include "dialogs/tech_chart.h"

#include <algorithm>
#include <gtest/gtest.h>

namespace ksm {
namespace {

struct ChartCase {
    const TechChart& Chart;
    std::vector<std::ptrdiff_t> Lines;  ///< Line1, Line4, Line5, Line6 and pairs of strokes
    std::vector<std::ptrdiff_t> Fields; ///< yellow, green, blue and red boxes
};

const ChartCase Charts[]{{StandardChart(), {29, 9, 2, 3, 34}, {5, 5, 5, 5}},
                         {ExpansionChart(), {34, 9, 3, 9, 42}, {6, 6, 7, 5}}};

TEST(TechCharts, HaveTheirNumbersOfEverything) {
    for (const auto& [chart, lines, fields] : Charts) {
        EXPECT_EQ(
            (std::vector{std::ssize(chart.Line1), std::ssize(chart.Line4), std::ssize(chart.Line5),
                         std::ssize(chart.Line6), std::ssize(StrokePairs(chart))}),
            lines);
        std::vector<std::ptrdiff_t> found(4);
        for (const Technology& technology : chart.Label1) {
            ++found.at(static_cast<std::size_t>(technology.Field));
        }
        EXPECT_EQ(found, fields);
    }
}

/// How many lines lead into the box, each of them to an arrowhead of its colour.
int LinesInto(const Technology& box, const TechChart& chart) {
    int found = 0;
    for (const auto* lines : {&chart.Line1, &chart.Line4, &chart.Line5, &chart.Line6}) {
        for (const auto& [ink, from, to] : *lines) {
            const Point inBox{to.X - box.Place.X, to.Y - box.Place.Y};
            const bool down = inBox.Y == 0 && inBox.X > 0 && inBox.X < box.Width;
            const bool right = inBox.X == 0 && inBox.Y > 0 && inBox.Y < TechBoxHeight;
            if ((down && from.X == to.X) || (right && from.Y == to.Y)) {
                ++found;
                const auto mark = std::ranges::find(chart.Marks, to, &ChartMark::At);
                EXPECT_TRUE(mark != chart.Marks.end() && mark->Ink == ink &&
                            mark->Shape == (down ? MarkShape::ArrowDown : MarkShape::ArrowRight));
            }
        }
    }
    return found;
}

TEST(TechCharts, LeadALineFromEveryPrerequisite) {
    for (const auto& [chart, lines, fields] : Charts) {
        std::ptrdiff_t joins = 1; // in the legend
        for (const Technology& box : chart.Label1) {
            const bool all = box.Rule == TechRule::AllOf;
            joins += all ? 1 : 0;
            EXPECT_EQ(LinesInto(box, chart), all ? 1 : std::ssize(box.Sources)) << box.Name;
            for (const int source : box.Sources) {
                EXPECT_LT(chart.Label1.at(static_cast<std::size_t>(source)).Place.Y, box.Place.Y)
                    << box.Name << ": earlier technologies stand higher";
            }
        }
        EXPECT_EQ(std::ranges::count(chart.Marks, MarkShape::Diamond, &ChartMark::Shape), joins);
    }
}

} // namespace
} // namespace ksm
