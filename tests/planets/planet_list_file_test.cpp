#include "planets/planet_list_file.h"

#include <algorithm>
#include <gtest/gtest.h>
#include <set>

namespace ksm {
namespace {

using enum Specialty;

const std::pair<std::string, PlanetRecord> Lines[]{
    // Fields.
    {"Alpha,2,1,green,extra", {"Alpha", 2, 1, Green}},
    {"Alpha, 2, 1, b", {"Alpha", 2, 1, None}},
    // A line feed alone ends no line, and counts as a blank in a number.
    {"Al\npha,1\n2,\n3", {"Al\npha", 12, 3, None}},
    // Encodings: valid UTF-8 stays, anything else is Windows-1252.
    {"Zo\xC3\xAB", {"Zo\xC3\xAB", 0, 0, None}},
    {"Zo\xEB\x80", {"Zo\xC3\xAB\xE2\x82\xAC", 0, 0, None}},
    {"\xF4\x90\x80\x80", {"\xC3\xB4\xC2\x90\xE2\x82\xAC\xE2\x82\xAC", 0, 0, None}},
    // Numbers.
    {"N,3x,1,Blue", {"N", 3, 1, Blue}},
    {"N,x3,+4", {"N", 0, 4, None}},
    {"N,-.5,--3,RED", {"N", 0, 0, Red}},
    {"N,1 \t2,1d1", {"N", 12, 10, None}},
    {"N,5,6", {"N", 5, 6, None}},
    {"N,7,8", {"N", 7, 8, None}},
    {"N,9,.", {"N", 9, 0, None}},
    {"N,1e-999,0e999", {"N", 0, 0, None}},
    {"N,&HfA,&o17", {"N", 250, 15, None}},
    {"N,&H,&o8", {"N", 0, 0, None}},
    {"N,\xD9\xA3,\xC2\xA0\x37", {"N", 0, 0, None}}, // only ASCII digits and blanks count
};

TEST(PlanetList, ReadsALineAs) {
    for (const auto& [line, planet] : Lines) {
        const Outcome<PlanetList> result = ReadPlanetList(line);
        ASSERT_TRUE(result) << result.Reason();
        EXPECT_EQ(*result, PlanetList{planet}) << testing::PrintToString(line);
    }
}

TEST(PlanetList, OfAnyLengthIsDecoded) {
    std::string utf8;
    for (int letter = 0; letter < 5000; ++letter) {
        utf8 += "\xC3\xAB";
    }
    for (const std::string& name : {utf8, std::string(5000, '\xEB')}) {
        EXPECT_EQ(ReadPlanetList(name)->front().Name, utf8);
    }
}

TEST(PlanetList, SkipsCommentsAndCountsBlankLines) {
    const PlanetList list = *ReadPlanetList("'one\rA\r\n\r'two\r\nB,1\r\r\nC\n\r\n");
    EXPECT_EQ(list, (PlanetList{{"A"}, {""}, {"B", 1}, {""}, {"C\n"}}));
}

TEST(PlanetList, ReportsEveryFigureOutOfRangeWithItsLineUpToTen) {
    const std::string nines(400, '9');
    const std::string list = "'c\r\nA,256,-1\r\nB,255.5\r\nC,-0.5,1e400\rE," + nines;
    EXPECT_EQ(ReadPlanetList(list).Reason(),
              "Line 2: resources 256 (allowed: 0 to 255)"
              "\nLine 2: influence -1 (allowed: 0 to 255)"
              "\nLine 3: resources 255.5 (allowed: 0 to 255)"
              "\nLine 4: influence 1e400 (allowed: 0 to 255)"
              "\nLine 5: resources 99999999999999999999... (allowed: 0 to 255)");
    const std::string message = ReadPlanetList("A,777,777\rB,777,777\rC,777,777\r"
                                               "D,777,777\rE,777,777\rF,777,777")
                                    .Reason();
    EXPECT_EQ(std::ranges::count(message, 'L'), 10);
    EXPECT_TRUE(message.ends_with("\nand 2 more"));
}

TEST(PlanetList, HoldsUpToOneHundredAndOnePlanets) {
    std::string most;
    for (int planet = 0; planet < MaxPlanets; ++planet) {
        most += "P\r\n";
    }
    EXPECT_EQ(ReadPlanetList(most)->size(), 101U);
    EXPECT_EQ(ReadPlanetList(most + "'c\rQ\rR").Reason(),
              "Line 103: planet 102 (allowed: 1 to 101 planets)")
        << "reported once, not for every line too many";
}

TEST(PlanetList, WithoutAPlanetOrAFileIsAProblem) {
    EXPECT_EQ(ReadPlanetList("\xEF\xBB\xBF'c\r\n'c").Reason(),
              "no planet (allowed: 1 to 101 planets)");
    EXPECT_EQ(ReadPlanetList("'line feeds\nA,1\n").Reason(),
              "no planet, since no line ends with CR LF (allowed: 1 to 101 planets)");
    EXPECT_EQ(ReadPlanetListFile("/no/such").Reason(),
              "The planet list /no/such cannot be used.\n\nNo such file or directory");
    EXPECT_TRUE(ReadPlanetListFile("/").Reason().ends_with("\n\nThis is not a file."));
}

TEST(PlanetList, TheDeliveredListIsFitForPlay) {
    const Outcome<PlanetList> list = ReadPlanetListFile(DELIVERED_PLANET_LIST);
    ASSERT_TRUE(list) << list.Reason();
    EXPECT_GE(list->size(), 60U);
    std::set<std::string> names;
    for (const PlanetRecord& planet : *list) {
        EXPECT_TRUE(!planet.Name.empty() && names.insert(planet.Name).second) << planet.Name;
        EXPECT_LE(std::max(planet.Resources, planet.Influence), 4) << planet.Name;
    }
    for (const RaceTraits& race : Races) {
        for (const std::string_view home : race.Homes) {
            EXPECT_TRUE(home.empty() || names.contains(std::string(home))) << home;
        }
    }
}

} // namespace
} // namespace ksm
