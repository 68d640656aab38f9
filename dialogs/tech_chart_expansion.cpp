// The technology chart of the Corrin's End expansion.
#include "dialogs/tech_chart.h"

namespace ksm {

namespace {

using enum TechField;
using enum TechRule;

// One row each, so that a row can be found, read and changed on its own.
// clang-format off

std::vector<Technology> Boxes() {
    return {
        /*  0 */ {"ENVIRO COMPENSATOR", Yellow, {169, 8}},
        /*  1 */ {"PELLAM TOOLS", Yellow, {169, 88}, AnyOf, {0}},
        /*  2 */ {"MICRO TECHNOLOGY", Yellow, {169, 168}, AnyOf, {0, 1}},
        /*  3 */ {"ORBITAL FOUNDRY", Yellow, {169, 248}, AllOf, {2, 12}},
        /*  4 */ {"SEED CULTURES", Green, {31, 8}},
        /*  5 */ {"VITAL SERUM", Green, {31, 88}, AnyOf, {0, 4}},
        /*  6 */ {"SLEEP CHAMBERS", Green, {31, 168}, AnyOf, {5}},
        /*  7 */ {"UNITED GUILDS", Yellow, {169, 328}, AnyOf, {3, 8}},
        /*  8 */ {"MIND LINK", Green, {31, 248}, AllOf, {2, 6}},
        /*  9 */ {"LIVING HULLS", Green, {31, 328}, AnyOf, {8}},
        /* 10 */ {"ION SAILS", Blue, {307, 8}},
        /* 11 */ {"DRIFT SENSORS", Blue, {307, 88}, AnyOf, {10}},
        /* 12 */ {"PHASE DRIVE", Blue, {307, 168}, AllOf, {1, 11}},
        /* 13 */ {"FOLD BEACONS", Blue, {307, 248}, AnyOf, {12}},
        /* 14 */ {"JUMP CORRIDORS", Blue, {307, 328}, AllOf, {3, 13}},
        /* 15 */ {"COIL GUNS", Red, {445, 8}},
        /* 16 */ {"PRISM SHIELDS", Red, {445, 88}, AnyOf, {10, 15}},
        /* 17 */ {"ARC LANCES", Red, {445, 168}, AnyOf, {11, 16}},
        /* 18 */ {"SIEGE MORTARS", Red, {445, 248}, AnyOf, {11, 17}},
        /* 19 */ {"STAR BREAKER", Red, {445, 328}, AllOf, {13, 16, 18}},
        /* 20 */ {"SPORE CLOUDS", Green, {31, 408}, AnyOf, {9}},
        /* 21 */ {"GATE RINGS", Blue, {310, 408}, AllOf, {14, 19}, NarrowWidth},
        /* 22 */ {"VOID SIPHON", Blue, {400, 408}, AnyOf, {19}, NarrowWidth},
        /* 23 */ {"WORLD GARDENS", Yellow, {169, 408}, AllOf, {7, 9}},
    };
}

std::vector<Connector> Line1() {
    return {
        {colour::Orange, {169, 24}, {138, 24}},
        {colour::Orange, {138, 24}, {138, 184}},
        {colour::Orange, {138, 184}, {169, 184}},
        {colour::Orange, {138, 64}, {91, 64}},
        {colour::Orange, {91, 64}, {91, 88}},
        {colour::Orange, {207, 148}, {338, 148}},
        {colour::Orange, {207, 213}, {76, 213}},
        {colour::Orange, {207, 308}, {338, 308}},
        {colour::Black, {69, 41}, {69, 88}},
        {colour::Black, {69, 121}, {69, 168}},
        {colour::Black, {69, 201}, {69, 206}},
        {colour::Black, {69, 220}, {69, 248}},
        {colour::Black, {69, 281}, {69, 328}},
        {colour::Black, {207, 41}, {207, 88}},
        {colour::Black, {207, 121}, {207, 168}},
        {colour::Black, {207, 201}, {207, 221}},
        {colour::Black, {207, 235}, {207, 248}},
        {colour::Black, {207, 281}, {207, 328}},
        {colour::Black, {345, 41}, {345, 88}},
        {colour::Black, {345, 121}, {345, 141}},
        {colour::Black, {345, 155}, {345, 168}},
        {colour::Black, {345, 201}, {345, 248}},
        {colour::Black, {345, 281}, {345, 301}},
        {colour::Black, {345, 315}, {345, 328}},
        {colour::Black, {483, 41}, {483, 88}},
        {colour::Black, {483, 121}, {483, 168}},
        {colour::Black, {483, 201}, {483, 248}},
        {colour::Black, {483, 281}, {483, 286}},
        {colour::Black, {483, 300}, {483, 328}},
        {colour::Black, {69, 361}, {69, 408}},
        {colour::Black, {207, 361}, {207, 374}},
        {colour::Black, {207, 388}, {207, 408}},
        {colour::Black, {345, 361}, {345, 374}},
        {colour::Black, {345, 388}, {345, 408}},
    };
}

std::vector<Connector> Line4() {
    return {
        {colour::Blue, {345, 64}, {461, 64}},
        {colour::Blue, {461, 64}, {461, 88}},
        {colour::Blue, {345, 133}, {461, 133}},
        {colour::Blue, {461, 133}, {461, 168}},
        {colour::Blue, {414, 133}, {414, 224}},
        {colour::Blue, {414, 224}, {461, 224}},
        {colour::Blue, {461, 224}, {461, 248}},
        {colour::Blue, {345, 228}, {214, 228}},
        {colour::Blue, {345, 293}, {476, 293}},
    };
}

std::vector<Connector> Line5() {
    return {
        {colour::DarkGreen, {69, 304}, {185, 304}},
        {colour::DarkGreen, {185, 304}, {185, 328}},
        {colour::DarkGreen, {69, 381}, {200, 381}},
    };
}

std::vector<Connector> Line6() {
    return {
        {colour::Red, {522, 104}, {538, 104}},
        {colour::Red, {538, 104}, {538, 293}},
        {colour::Red, {538, 293}, {490, 293}},
        {colour::Red, {445, 344}, {414, 344}},
        {colour::Red, {414, 344}, {414, 381}},
        {colour::Red, {414, 381}, {352, 381}},
        {colour::Red, {483, 361}, {483, 389}},
        {colour::Red, {483, 389}, {435, 389}},
        {colour::Red, {435, 389}, {435, 408}},
    };
}

std::vector<ChartMark> Marks() {
    using enum MarkShape;
    return {
        {ArrowRight, {169, 184}, colour::Orange},
        {ArrowDown, {91, 88}, colour::Orange},
        {ArrowDown, {69, 88}, colour::Black},
        {ArrowDown, {69, 168}, colour::Black},
        {Diamond, {69, 213}, colour::Black},
        {ArrowDown, {69, 248}, colour::Black},
        {ArrowDown, {69, 328}, colour::Black},
        {ArrowDown, {207, 88}, colour::Black},
        {ArrowDown, {207, 168}, colour::Black},
        {Diamond, {207, 228}, colour::Black},
        {ArrowDown, {207, 248}, colour::Black},
        {ArrowDown, {207, 328}, colour::Black},
        {ArrowDown, {345, 88}, colour::Black},
        {Diamond, {345, 148}, colour::Black},
        {ArrowDown, {345, 168}, colour::Black},
        {ArrowDown, {345, 248}, colour::Black},
        {Diamond, {345, 308}, colour::Black},
        {ArrowDown, {345, 328}, colour::Black},
        {ArrowDown, {483, 88}, colour::Black},
        {ArrowDown, {483, 168}, colour::Black},
        {ArrowDown, {483, 248}, colour::Black},
        {Diamond, {483, 293}, colour::Black},
        {ArrowDown, {483, 328}, colour::Black},
        {ArrowDown, {461, 88}, colour::Blue},
        {ArrowDown, {461, 168}, colour::Blue},
        {ArrowDown, {461, 248}, colour::Blue},
        {ArrowDown, {185, 328}, colour::DarkGreen},
        {ArrowDown, {69, 408}, colour::Black},
        {Diamond, {207, 381}, colour::Black},
        {ArrowDown, {207, 408}, colour::Black},
        {Diamond, {345, 381}, colour::Black},
        {ArrowDown, {345, 408}, colour::Black},
        {ArrowDown, {435, 408}, colour::Red},
        {Diamond, LegendSample, colour::Black},
    };
}
// clang-format on

} // namespace

const TechChart& ExpansionChart() {
    static const TechChart chart{Boxes(), Line1(), Line4(), Line5(), Line6(), Marks()};
    return chart;
}

} // namespace ksm
