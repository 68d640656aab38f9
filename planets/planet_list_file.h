// The planet list: a text file with one planet a line.
#pragma once

#include "model/game_state.h"

#include <filesystem>
#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace ksm {

/// Name of the planet list, which lies in the program's folder.
inline constexpr auto PlanetListName = "Original.pln";

struct PlanetListProblem {
    int Line = 0;        ///< 1 for the first line of the file, 0 for the file as a whole
    std::string What;    ///< "resources 300"
    std::string Allowed; ///< "0 to 255"; empty where nothing can be said

    bool operator==(const PlanetListProblem&) const = default;
};

struct PlanetListResult {
    std::vector<PlanetRecord> Planets; ///< in the order of the file; complete without problems
    std::vector<PlanetListProblem> Problems;
};

/// The characters before the first comma; the whole text without a comma.
std::string_view FieldBeforeComma(std::string_view text);
/// The characters after the first comma; empty without a comma.
std::string_view TextAfterComma(std::string_view text);

/// Reads the bytes of a planet list and collects every problem in them.
PlanetListResult ReadPlanetList(std::string_view bytes);
/// Reads the planet list in a file; a file that is missing or cannot be read is a problem too.
PlanetListResult ReadPlanetListFile(const std::filesystem::path& path);

/// Puts 1..101 planets into the game, all of them unowned, and fills the pool's list and count.
void TakePlanets(Game& game, std::span<const PlanetRecord> planets);

/// What a message box says of a planet list that cannot be used: at most ten problems, one a line,
/// and how many more there are.
std::string DescribeProblems(const std::filesystem::path& path,
                             std::span<const PlanetListProblem> problems);

} // namespace ksm
