#include "dialogs/tech_chart.h"

#include <algorithm>
#include <gtest/gtest.h>
#include <set>

namespace ksm {
namespace {

std::vector<Connector> LinesOf(const TechChart& chart) {
    std::vector<Connector> all;
    for (const auto* lines : {&chart.Line1, &chart.Line4, &chart.Line5, &chart.Line6}) {
        all.insert(all.end(), lines->begin(), lines->end());
    }
    return all;
}

bool Contains(Point corner, int width, int height, Point p) {
    return p.X >= corner.X && p.X <= corner.X + width && p.Y >= corner.Y &&
           p.Y <= corner.Y + height;
}

bool LiesOn(const Connector& line, Point p) {
    return Contains({std::min(line.From.X, line.To.X), std::min(line.From.Y, line.To.Y)},
                    std::abs(line.From.X - line.To.X), std::abs(line.From.Y - line.To.Y), p);
}

/// Which boxes a line from there comes from: one on whose edge it begins, or those of the line that
/// it leaves, or those of all lines into the diamond above it.
std::set<int> Origins(const TechChart& chart, Point start) {
    for (int box = 0; const TechBox& technology : chart.Label1) {
        if (Contains(technology.Place, technology.Width, TechBoxHeight, start)) {
            return {box};
        }
        ++box;
    }
    const Point above{start.X, start.Y - StrokeSize};
    const auto mark = std::ranges::find(chart.Marks, above, &ChartMark::At);
    const bool leavesDiamond = mark != chart.Marks.end() && mark->Shape == MarkShape::Diamond;
    std::set<int> origins;
    for (const Connector& line : LinesOf(chart)) {
        const int distance = std::abs(line.To.X - above.X) + std::abs(line.To.Y - above.Y);
        const bool joins = leavesDiamond && line.To.Y <= above.Y && distance == StrokeSize;
        if (joins || (LiesOn(line, start) && line.From != start)) {
            origins.merge(Origins(chart, line.From));
        }
    }
    return origins;
}

TEST(TechCharts, LeadALineFromEveryPrerequisite) {
    for (const TechChart& chart : {StandardChart(), ExpansionChart()}) {
        for (const TechBox& box : chart.Label1) {
            std::multiset<std::set<int>> expected, found;
            for (const int source : box.Sources) {
                expected.insert({source});
            }
            if (box.Rule == TechRule::AllOf) {
                expected = {{box.Sources.begin(), box.Sources.end()}};
            }
            for (const Connector& line : LinesOf(chart)) {
                if (Contains(box.Place, box.Width, TechBoxHeight, line.To)) {
                    found.insert(Origins(chart, line.From));
                    EXPECT_EQ(std::ranges::count(chart.Marks, line.To, &ChartMark::At), 1);
                }
            }
            EXPECT_EQ(found, expected) << box.Name;
        }
    }
}

TEST(TechCharts, HaveTheirNumbersOfLinesAndMarks) {
    const auto numbers = [](const TechChart& chart) {
        return std::array{std::ssize(chart.Line1), std::ssize(chart.Line4), std::ssize(chart.Line5),
                          std::ssize(chart.Line6), std::ssize(chart.Marks)};
    };
    EXPECT_EQ(numbers(StandardChart()), (std::array<std::ptrdiff_t, 5>{29, 9, 2, 3, 28}));
    EXPECT_EQ(numbers(ExpansionChart()), (std::array<std::ptrdiff_t, 5>{34, 9, 3, 9, 34}));
}

} // namespace
} // namespace ksm
