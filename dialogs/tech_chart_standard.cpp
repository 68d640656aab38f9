// The technology chart of the standard rules.
#include "dialogs/tech_chart.h"

namespace ksm {

namespace {

using enum TechField;
using enum TechRule;

// One row each, so that a row can be found, read and changed on its own.
// clang-format off

std::vector<Technology> Boxes() {
    return {
        /*  0 */ {"ENVIRO COMPENSATOR", Yellow, {169, 14}},
        /*  1 */ {"PELLAM TOOLS", Yellow, {169, 110}, AnyOf, {0}},
        /*  2 */ {"MICRO TECHNOLOGY", Yellow, {169, 206}, AnyOf, {0, 1}},
        /*  3 */ {"ORBITAL FOUNDRY", Yellow, {169, 302}, AllOf, {2, 12}},
        /*  4 */ {"SEED CULTURES", Green, {31, 14}},
        /*  5 */ {"VITAL SERUM", Green, {31, 110}, AnyOf, {0, 4}},
        /*  6 */ {"SLEEP CHAMBERS", Green, {31, 206}, AnyOf, {5}},
        /*  7 */ {"UNITED GUILDS", Yellow, {169, 398}, AnyOf, {3, 8}},
        /*  8 */ {"MIND LINK", Green, {31, 302}, AllOf, {2, 6}},
        /*  9 */ {"LIVING HULLS", Green, {31, 398}, AnyOf, {8}},
        /* 10 */ {"ION SAILS", Blue, {307, 14}},
        /* 11 */ {"DRIFT SENSORS", Blue, {307, 110}, AnyOf, {10}},
        /* 12 */ {"PHASE DRIVE", Blue, {307, 206}, AllOf, {1, 11}},
        /* 13 */ {"FOLD BEACONS", Blue, {307, 302}, AnyOf, {12}},
        /* 14 */ {"JUMP CORRIDORS", Blue, {307, 398}, AllOf, {3, 13}},
        /* 15 */ {"COIL GUNS", Red, {445, 14}},
        /* 16 */ {"PRISM SHIELDS", Red, {445, 110}, AnyOf, {10, 15}},
        /* 17 */ {"ARC LANCES", Red, {445, 206}, AnyOf, {11, 16}},
        /* 18 */ {"SIEGE MORTARS", Red, {445, 302}, AnyOf, {11, 17}},
        /* 19 */ {"STAR BREAKER", Red, {445, 398}, AllOf, {13, 16, 18}},
    };
}

std::vector<Connector> Line1() {
    return {
        {colour::Orange, {169, 30}, {138, 30}},
        {colour::Orange, {138, 30}, {138, 222}},
        {colour::Orange, {138, 222}, {169, 222}},
        {colour::Orange, {138, 78}, {91, 78}},
        {colour::Orange, {91, 78}, {91, 110}},
        {colour::Orange, {207, 184}, {338, 184}},
        {colour::Orange, {207, 258}, {76, 258}},
        {colour::Orange, {207, 376}, {338, 376}},
        {colour::Black, {69, 47}, {69, 110}},
        {colour::Black, {69, 143}, {69, 206}},
        {colour::Black, {69, 239}, {69, 251}},
        {colour::Black, {69, 265}, {69, 302}},
        {colour::Black, {69, 335}, {69, 398}},
        {colour::Black, {207, 47}, {207, 110}},
        {colour::Black, {207, 143}, {207, 206}},
        {colour::Black, {207, 239}, {207, 273}},
        {colour::Black, {207, 287}, {207, 302}},
        {colour::Black, {207, 335}, {207, 398}},
        {colour::Black, {345, 47}, {345, 110}},
        {colour::Black, {345, 143}, {345, 177}},
        {colour::Black, {345, 191}, {345, 206}},
        {colour::Black, {345, 239}, {345, 302}},
        {colour::Black, {345, 335}, {345, 369}},
        {colour::Black, {345, 383}, {345, 398}},
        {colour::Black, {483, 47}, {483, 110}},
        {colour::Black, {483, 143}, {483, 206}},
        {colour::Black, {483, 239}, {483, 302}},
        {colour::Black, {483, 335}, {483, 347}},
        {colour::Black, {483, 361}, {483, 398}},
    };
}

std::vector<Connector> Line4() {
    return {
        {colour::Blue, {345, 78}, {461, 78}},
        {colour::Blue, {461, 78}, {461, 110}},
        {colour::Blue, {345, 162}, {461, 162}},
        {colour::Blue, {461, 162}, {461, 206}},
        {colour::Blue, {414, 162}, {414, 270}},
        {colour::Blue, {414, 270}, {461, 270}},
        {colour::Blue, {461, 270}, {461, 302}},
        {colour::Blue, {345, 280}, {214, 280}},
        {colour::Blue, {345, 354}, {476, 354}},
    };
}

std::vector<Connector> Line5() {
    return {
        {colour::DarkGreen, {69, 366}, {185, 366}},
        {colour::DarkGreen, {185, 366}, {185, 398}},
    };
}

std::vector<Connector> Line6() {
    return {
        {colour::Red, {522, 126}, {538, 126}},
        {colour::Red, {538, 126}, {538, 354}},
        {colour::Red, {538, 354}, {490, 354}},
    };
}

std::vector<ChartMark> Marks() {
    using enum MarkShape;
    return {
        {ArrowRight, {169, 222}, colour::Orange},
        {ArrowDown, {91, 110}, colour::Orange},
        {ArrowDown, {69, 110}, colour::Black},
        {ArrowDown, {69, 206}, colour::Black},
        {Diamond, {69, 258}, colour::Black},
        {ArrowDown, {69, 302}, colour::Black},
        {ArrowDown, {69, 398}, colour::Black},
        {ArrowDown, {207, 110}, colour::Black},
        {ArrowDown, {207, 206}, colour::Black},
        {Diamond, {207, 280}, colour::Black},
        {ArrowDown, {207, 302}, colour::Black},
        {ArrowDown, {207, 398}, colour::Black},
        {ArrowDown, {345, 110}, colour::Black},
        {Diamond, {345, 184}, colour::Black},
        {ArrowDown, {345, 206}, colour::Black},
        {ArrowDown, {345, 302}, colour::Black},
        {Diamond, {345, 376}, colour::Black},
        {ArrowDown, {345, 398}, colour::Black},
        {ArrowDown, {483, 110}, colour::Black},
        {ArrowDown, {483, 206}, colour::Black},
        {ArrowDown, {483, 302}, colour::Black},
        {Diamond, {483, 354}, colour::Black},
        {ArrowDown, {483, 398}, colour::Black},
        {ArrowDown, {461, 110}, colour::Blue},
        {ArrowDown, {461, 206}, colour::Blue},
        {ArrowDown, {461, 302}, colour::Blue},
        {ArrowDown, {185, 398}, colour::DarkGreen},
        {Diamond, LegendSample, colour::Black},
    };
}
// clang-format on

} // namespace

const TechChart& StandardChart() {
    static const TechChart chart{Boxes(), Line1(), Line4(), Line5(), Line6(), Marks()};
    return chart;
}

} // namespace ksm
