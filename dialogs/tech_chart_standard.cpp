// The technology chart of the standard rules.
#include "dialogs/tech_chart.h"

namespace ksm {

namespace {

using enum TechField;
using enum TechRule;
using namespace chart_ink;

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
        {OrangeInk, {169, 30}, {138, 30}},
        {OrangeInk, {138, 30}, {138, 222}},
        {OrangeInk, {138, 222}, {169, 222}},
        {OrangeInk, {138, 78}, {91, 78}},
        {OrangeInk, {91, 78}, {91, 110}},
        {OrangeInk, {207, 184}, {338, 184}},
        {OrangeInk, {207, 258}, {76, 258}},
        {OrangeInk, {207, 376}, {338, 376}},
        {BlackInk, {69, 47}, {69, 110}},
        {BlackInk, {69, 143}, {69, 206}},
        {BlackInk, {69, 239}, {69, 251}},
        {BlackInk, {69, 265}, {69, 302}},
        {BlackInk, {69, 335}, {69, 398}},
        {BlackInk, {207, 47}, {207, 110}},
        {BlackInk, {207, 143}, {207, 206}},
        {BlackInk, {207, 239}, {207, 273}},
        {BlackInk, {207, 287}, {207, 302}},
        {BlackInk, {207, 335}, {207, 398}},
        {BlackInk, {345, 47}, {345, 110}},
        {BlackInk, {345, 143}, {345, 177}},
        {BlackInk, {345, 191}, {345, 206}},
        {BlackInk, {345, 239}, {345, 302}},
        {BlackInk, {345, 335}, {345, 369}},
        {BlackInk, {345, 383}, {345, 398}},
        {BlackInk, {483, 47}, {483, 110}},
        {BlackInk, {483, 143}, {483, 206}},
        {BlackInk, {483, 239}, {483, 302}},
        {BlackInk, {483, 335}, {483, 347}},
        {BlackInk, {483, 361}, {483, 398}},
    };
}

std::vector<Connector> Line4() {
    return {
        {BlueInk, {345, 78}, {461, 78}},
        {BlueInk, {461, 78}, {461, 110}},
        {BlueInk, {345, 162}, {461, 162}},
        {BlueInk, {461, 162}, {461, 206}},
        {BlueInk, {414, 162}, {414, 270}},
        {BlueInk, {414, 270}, {461, 270}},
        {BlueInk, {461, 270}, {461, 302}},
        {BlueInk, {345, 280}, {214, 280}},
        {BlueInk, {345, 354}, {476, 354}},
    };
}

std::vector<Connector> Line5() {
    return {
        {GreenInk, {69, 366}, {185, 366}},
        {GreenInk, {185, 366}, {185, 398}},
    };
}

std::vector<Connector> Line6() {
    return {
        {RedInk, {522, 126}, {538, 126}},
        {RedInk, {538, 126}, {538, 354}},
        {RedInk, {538, 354}, {490, 354}},
    };
}

std::vector<ChartMark> Marks() {
    using enum MarkShape;
    return {
        {ArrowRight, {169, 222}, OrangeInk},
        {ArrowDown, {91, 110}, OrangeInk},
        {ArrowDown, {69, 110}, BlackInk},
        {ArrowDown, {69, 206}, BlackInk},
        {Diamond, {69, 258}, BlackInk},
        {ArrowDown, {69, 302}, BlackInk},
        {ArrowDown, {69, 398}, BlackInk},
        {ArrowDown, {207, 110}, BlackInk},
        {ArrowDown, {207, 206}, BlackInk},
        {Diamond, {207, 280}, BlackInk},
        {ArrowDown, {207, 302}, BlackInk},
        {ArrowDown, {207, 398}, BlackInk},
        {ArrowDown, {345, 110}, BlackInk},
        {Diamond, {345, 184}, BlackInk},
        {ArrowDown, {345, 206}, BlackInk},
        {ArrowDown, {345, 302}, BlackInk},
        {Diamond, {345, 376}, BlackInk},
        {ArrowDown, {345, 398}, BlackInk},
        {ArrowDown, {483, 110}, BlackInk},
        {ArrowDown, {483, 206}, BlackInk},
        {ArrowDown, {483, 302}, BlackInk},
        {Diamond, {483, 354}, BlackInk},
        {ArrowDown, {483, 398}, BlackInk},
        {ArrowDown, {461, 110}, BlueInk},
        {ArrowDown, {461, 206}, BlueInk},
        {ArrowDown, {461, 302}, BlueInk},
        {ArrowDown, {185, 398}, GreenInk},
        {Diamond, LegendSample, BlackInk},
    };
}
// clang-format on

} // namespace

const TechChart& StandardChart() {
    static const TechChart chart{Boxes(), Line1(), Line4(), Line5(), Line6(), Marks()};
    return chart;
}

} // namespace ksm
