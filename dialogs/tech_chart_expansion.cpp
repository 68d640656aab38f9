// The technology chart of the Corrin's End expansion.
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
        {OrangeInk, {169, 24}, {138, 24}},
        {OrangeInk, {138, 24}, {138, 184}},
        {OrangeInk, {138, 184}, {169, 184}},
        {OrangeInk, {138, 64}, {91, 64}},
        {OrangeInk, {91, 64}, {91, 88}},
        {OrangeInk, {207, 148}, {338, 148}},
        {OrangeInk, {207, 213}, {76, 213}},
        {OrangeInk, {207, 308}, {338, 308}},
        {BlackInk, {69, 41}, {69, 88}},
        {BlackInk, {69, 121}, {69, 168}},
        {BlackInk, {69, 201}, {69, 206}},
        {BlackInk, {69, 220}, {69, 248}},
        {BlackInk, {69, 281}, {69, 328}},
        {BlackInk, {207, 41}, {207, 88}},
        {BlackInk, {207, 121}, {207, 168}},
        {BlackInk, {207, 201}, {207, 221}},
        {BlackInk, {207, 235}, {207, 248}},
        {BlackInk, {207, 281}, {207, 328}},
        {BlackInk, {345, 41}, {345, 88}},
        {BlackInk, {345, 121}, {345, 141}},
        {BlackInk, {345, 155}, {345, 168}},
        {BlackInk, {345, 201}, {345, 248}},
        {BlackInk, {345, 281}, {345, 301}},
        {BlackInk, {345, 315}, {345, 328}},
        {BlackInk, {483, 41}, {483, 88}},
        {BlackInk, {483, 121}, {483, 168}},
        {BlackInk, {483, 201}, {483, 248}},
        {BlackInk, {483, 281}, {483, 286}},
        {BlackInk, {483, 300}, {483, 328}},
        {BlackInk, {69, 361}, {69, 408}},
        {BlackInk, {207, 361}, {207, 374}},
        {BlackInk, {207, 388}, {207, 408}},
        {BlackInk, {345, 361}, {345, 374}},
        {BlackInk, {345, 388}, {345, 408}},
    };
}

std::vector<Connector> Line4() {
    return {
        {BlueInk, {345, 64}, {461, 64}},
        {BlueInk, {461, 64}, {461, 88}},
        {BlueInk, {345, 133}, {461, 133}},
        {BlueInk, {461, 133}, {461, 168}},
        {BlueInk, {414, 133}, {414, 224}},
        {BlueInk, {414, 224}, {461, 224}},
        {BlueInk, {461, 224}, {461, 248}},
        {BlueInk, {345, 228}, {214, 228}},
        {BlueInk, {345, 293}, {476, 293}},
    };
}

std::vector<Connector> Line5() {
    return {
        {GreenInk, {69, 304}, {185, 304}},
        {GreenInk, {185, 304}, {185, 328}},
        {GreenInk, {69, 381}, {200, 381}},
    };
}

std::vector<Connector> Line6() {
    return {
        {RedInk, {522, 104}, {538, 104}},
        {RedInk, {538, 104}, {538, 293}},
        {RedInk, {538, 293}, {490, 293}},
        {RedInk, {445, 344}, {414, 344}},
        {RedInk, {414, 344}, {414, 381}},
        {RedInk, {414, 381}, {352, 381}},
        {RedInk, {483, 361}, {483, 389}},
        {RedInk, {483, 389}, {435, 389}},
        {RedInk, {435, 389}, {435, 408}},
    };
}

std::vector<ChartMark> Marks() {
    using enum MarkShape;
    return {
        {ArrowRight, {169, 184}, OrangeInk},
        {ArrowDown, {91, 88}, OrangeInk},
        {ArrowDown, {69, 88}, BlackInk},
        {ArrowDown, {69, 168}, BlackInk},
        {Diamond, {69, 213}, BlackInk},
        {ArrowDown, {69, 248}, BlackInk},
        {ArrowDown, {69, 328}, BlackInk},
        {ArrowDown, {207, 88}, BlackInk},
        {ArrowDown, {207, 168}, BlackInk},
        {Diamond, {207, 228}, BlackInk},
        {ArrowDown, {207, 248}, BlackInk},
        {ArrowDown, {207, 328}, BlackInk},
        {ArrowDown, {345, 88}, BlackInk},
        {Diamond, {345, 148}, BlackInk},
        {ArrowDown, {345, 168}, BlackInk},
        {ArrowDown, {345, 248}, BlackInk},
        {Diamond, {345, 308}, BlackInk},
        {ArrowDown, {345, 328}, BlackInk},
        {ArrowDown, {483, 88}, BlackInk},
        {ArrowDown, {483, 168}, BlackInk},
        {ArrowDown, {483, 248}, BlackInk},
        {Diamond, {483, 293}, BlackInk},
        {ArrowDown, {483, 328}, BlackInk},
        {ArrowDown, {461, 88}, BlueInk},
        {ArrowDown, {461, 168}, BlueInk},
        {ArrowDown, {461, 248}, BlueInk},
        {ArrowDown, {185, 328}, GreenInk},
        {ArrowDown, {69, 408}, BlackInk},
        {Diamond, {207, 381}, BlackInk},
        {ArrowDown, {207, 408}, BlackInk},
        {Diamond, {345, 381}, BlackInk},
        {ArrowDown, {345, 408}, BlackInk},
        {ArrowDown, {435, 408}, RedInk},
        {Diamond, LegendSample, BlackInk},
    };
}
// clang-format on

} // namespace

const TechChart& ExpansionChart() {
    static const TechChart chart{Boxes(), Line1(), Line4(), Line5(), Line6(), Marks()};
    return chart;
}

} // namespace ksm
