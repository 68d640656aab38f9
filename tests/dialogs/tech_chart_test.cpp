#include "dialogs/tech_chart.h"

#include <algorithm>
#include <gtest/gtest.h>

namespace ksm {
namespace {

TEST(TechCharts, HaveTheirNumbersOfLinesAndAMarkWhereOneEntersABox) {
    const std::pair<TechChart, std::array<std::ptrdiff_t, 5>> rows[]{
        {StandardChart(), {29, 9, 2, 3, 34}}, {ExpansionChart(), {34, 9, 3, 9, 42}}};
    for (const auto& [chart, numbers] : rows) {
        // A diamond is two pairs of strokes.
        const auto strokes = std::ssize(chart.Marks) +
                             std::ranges::count(chart.Marks, MarkShape::Diamond, &ChartMark::Shape);
        EXPECT_EQ((std::array{std::ssize(chart.Line1), std::ssize(chart.Line4),
                              std::ssize(chart.Line5), std::ssize(chart.Line6), strokes}),
                  numbers);
        for (const TechBox& box : chart.Label1) {
            const auto enters = [&](const ChartMark& mark) {
                return mark.Shape != MarkShape::Diamond && mark.At.X >= box.Place.X &&
                       mark.At.X <= box.Place.X + box.Width && mark.At.Y >= box.Place.Y &&
                       mark.At.Y <= box.Place.Y + TechBoxHeight;
            };
            const auto ways = box.Rule == TechRule::AllOf ? 1 : std::ssize(box.Sources);
            EXPECT_EQ(std::ranges::count_if(chart.Marks, enters), ways) << box.Name;
        }
    }
}

} // namespace
} // namespace ksm
