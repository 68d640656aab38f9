// The charts' tables against their pictures: what the lines show must be what the tables say.

#include "dialogs/tech_chart.h"

#include <algorithm>
#include <array>
#include <gtest/gtest.h>
#include <set>

namespace ksm {
namespace {

struct Rect {
    int Left, Top, Right, Bottom;

    Rect Grown(int by) const { return {Left - by, Top - by, Right + by, Bottom + by}; }
    bool Contains(Point p) const {
        return Left <= p.X && p.X <= Right && Top <= p.Y && p.Y <= Bottom;
    }
    bool HasOnEdge(Point p) const { return Contains(p) && !Grown(-1).Contains(p); }
};

Rect Bounds(const Technology& t) {
    return {t.Place.X, t.Place.Y, t.Place.X + t.Width, t.Place.Y + TechBoxHeight};
}

Rect Bounds(const Connector& line) {
    return {std::min(line.From.X, line.To.X), std::min(line.From.Y, line.To.Y),
            std::max(line.From.X, line.To.X), std::max(line.From.Y, line.To.Y)};
}

bool Touch(const Connector& a, const Connector& b) {
    return Bounds(a).Contains(b.From) || Bounds(a).Contains(b.To) || Bounds(b).Contains(a.From) ||
           Bounds(b).Contains(a.To);
}

bool OnDiamond(const ChartMark& mark, Point p) {
    return mark.Shape == MarkShape::Diamond &&
           std::abs(p.X - mark.At.X) + std::abs(p.Y - mark.At.Y) == StrokeSize;
}

/// Reads a chart as a player does: from arrowheads back along touching lines and through diamonds
/// to the bottoms and sides of boxes.
class Picture {
public:
    explicit Picture(const TechChart& shown) : chart(shown) {
        for (const auto* array : {&chart.Line1, &chart.Line4, &chart.Line5, &chart.Line6}) {
            Lines.insert(Lines.end(), array->begin(), array->end());
        }
    }

    /// What the line comes from: a box as the set of its index, a diamond as the set of all that it
    /// needs.
    std::set<std::set<int>> Origins(const Connector& line) const {
        std::set<std::set<int>> origins;
        for (const Connector* joined : Joined(line)) {
            for (const Point end : {joined->From, joined->To}) {
                for (std::size_t i = 0; i < chart.Label1.size(); ++i) {
                    const Rect box = Bounds(chart.Label1[i]);
                    if (box.HasOnEdge(end) && end.Y > box.Top && !HasMark(end)) {
                        origins.insert({static_cast<int>(i)});
                    }
                }
                for (const ChartMark& mark : chart.Marks) {
                    if (OnDiamond(mark, end) && end.Y > mark.At.Y) {
                        origins.insert(NeededBy(mark));
                    }
                }
            }
        }
        return origins;
    }

    std::vector<const Connector*> Into(const ChartMark& diamond) const {
        std::vector<const Connector*> inputs;
        for (const Connector& line : Lines) {
            for (const Point end : {line.From, line.To}) {
                if (OnDiamond(diamond, end) && end.Y <= diamond.At.Y) {
                    inputs.push_back(&line);
                }
            }
        }
        return inputs;
    }

    /// One set of sources for each arrowhead on the box.
    std::multiset<std::set<int>> Alternatives(const Rect& box) const {
        std::multiset<std::set<int>> found;
        for (const auto& [shape, tip, ink] : chart.Marks) {
            const bool down = shape == MarkShape::ArrowDown && tip.Y == box.Top;
            const bool right = shape == MarkShape::ArrowRight && tip.X == box.Left;
            const auto line = std::ranges::find(Lines, tip, &Connector::To);
            if ((down || right) && box.HasOnEdge(tip) && line != Lines.end()) {
                EXPECT_EQ(line->Ink, ink);
                EXPECT_EQ(down, line->From.X == tip.X);
                found.insert(Merged(Origins(*line)));
            }
        }
        return found;
    }

    std::vector<Connector> Lines;

private:
    std::vector<const Connector*> Joined(const Connector& line) const {
        std::vector<const Connector*> joined{&line};
        for (std::size_t i = 0; i < joined.size(); ++i) {
            for (const Connector& other : Lines) {
                if (Touch(*joined[i], other) && std::ranges::count(joined, &other) == 0) {
                    joined.push_back(&other);
                }
            }
        }
        return joined;
    }

    static std::set<int> Merged(const std::set<std::set<int>>& origins) {
        std::set<int> all;
        for (const std::set<int>& origin : origins) {
            all.insert(origin.begin(), origin.end());
        }
        return all;
    }

    std::set<int> NeededBy(const ChartMark& diamond) const {
        std::set<int> needed;
        for (const Connector* input : Into(diamond)) {
            needed.merge(Merged(Origins(*input)));
        }
        return needed;
    }

    bool HasMark(Point at) const { return std::ranges::count(chart.Marks, at, &ChartMark::At) > 0; }

    const TechChart& chart;
};

struct ChartCase {
    const TechChart& (*Chart)();
    std::vector<std::ptrdiff_t> Lines;  ///< Line1, Line4, Line5, Line6 and pairs of strokes
    std::vector<std::ptrdiff_t> Marks;  ///< arrows down and right, diamonds
    std::vector<std::ptrdiff_t> Fields; ///< yellow, green, blue and red boxes
    std::ptrdiff_t NarrowBoxes;
};

class TechCharts : public testing::TestWithParam<ChartCase> {
protected:
    const TechChart& chart = GetParam().Chart();
    const Picture picture{chart};
};

TEST_P(TechCharts, HaveTheirNumbersOfEverything) {
    EXPECT_EQ(
        (std::vector{std::ssize(chart.Line1), std::ssize(chart.Line4), std::ssize(chart.Line5),
                     std::ssize(chart.Line6), std::ssize(StrokePairs(chart))}),
        GetParam().Lines);
    std::vector<std::ptrdiff_t> marks, fields;
    for (const auto shape : {MarkShape::ArrowDown, MarkShape::ArrowRight, MarkShape::Diamond}) {
        marks.push_back(std::ranges::count(chart.Marks, shape, &ChartMark::Shape));
    }
    using enum TechField;
    for (const auto field : {Yellow, Green, Blue, Red}) {
        fields.push_back(std::ranges::count(chart.Label1, field, &Technology::Field));
    }
    EXPECT_EQ(marks, GetParam().Marks);
    EXPECT_EQ(fields, GetParam().Fields);
    EXPECT_EQ(std::ranges::count(chart.Label1, NarrowWidth, &Technology::Width),
              GetParam().NarrowBoxes);
}

TEST_P(TechCharts, ShowThePrerequisitesOfTheirTables) {
    for (const Technology& technology : chart.Label1) {
        SCOPED_TRACE(technology.Name);
        const std::set<int> all(technology.Sources.begin(), technology.Sources.end());
        std::multiset<std::set<int>> expected;
        for (const int source : all) {
            expected.insert({source});
            EXPECT_LT(chart.Label1.at(static_cast<std::size_t>(source)).Place.Y, technology.Place.Y)
                << "earlier technologies stand higher";
        }
        if (technology.Rule == TechRule::AllOf) {
            expected = {all};
        }
        EXPECT_EQ(picture.Alternatives(Bounds(technology)), expected);
    }
}

TEST_P(TechCharts, LeadEveryLineFromOneOriginAndThroughDiamondsOnlyWhereLinesJoin) {

    for (const auto& line : picture.Lines) {
        SCOPED_TRACE(testing::Message() << line.From.X << ", " << line.From.Y);
        EXPECT_TRUE(line.From.X == line.To.X || line.From.Y == line.To.Y);
        const auto origins = picture.Origins(line);
        ASSERT_EQ(origins.size(), 1U);
        if (line.Ink != colour::Black) {
            ASSERT_EQ(origins.begin()->size(), 1U);
            const auto source = static_cast<std::size_t>(*origins.begin()->begin());
            const auto field = static_cast<std::size_t>(chart.Label1[source].Field);
            EXPECT_EQ(line.Ink,
                      (std::array{colour::Orange, colour::DarkGreen, colour::Blue, colour::Red}.at(
                          field)));
        }
    }
    for (const ChartMark& mark : chart.Marks) {
        const bool joins = mark.Shape == MarkShape::Diamond && mark.At != LegendSample;
        const auto inputs = picture.Into(mark).size();
        EXPECT_TRUE(joins ? inputs >= 2 : inputs == 0);
    }
}

const ChartCase Charts[] = {
    {StandardChart, {29, 9, 2, 3, 34}, {21, 1, 6}, {5, 5, 5, 5}, 0},
    {ExpansionChart, {34, 9, 3, 9, 42}, {25, 1, 8}, {6, 6, 7, 5}, 2},
};
INSTANTIATE_TEST_SUITE_P(Both, TechCharts, testing::ValuesIn(Charts));

TEST(TechChart, TheExpansionAddsToTheStandardTechnologies) {
    const auto& standard = StandardChart().Label1;
    const auto& expansion = ExpansionChart().Label1;
    for (std::size_t i = 0; i < standard.size(); ++i) {
        EXPECT_EQ(expansion.at(i).Name, standard[i].Name);
        EXPECT_EQ(expansion[i].Rule, standard[i].Rule);
        EXPECT_TRUE(std::ranges::includes(expansion[i].Sources, standard[i].Sources));
    }
}

} // namespace
} // namespace ksm
