// The planet list: a text file with one planet a line.
#pragma once

#include "model/game_state.h"
#include "model/outcome.h"

#include <filesystem>
#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace ksm {

/// Name of the planet list, which lies in the program's folder.
inline constexpr auto PlanetListName = "Original.pln";

using PlanetList = std::vector<PlanetRecord>;

/// The characters before the first comma; the whole text without a comma.
std::string_view FieldBeforeComma(std::string_view text);
/// The characters after the first comma; empty without a comma.
std::string_view TextAfterComma(std::string_view text);

/// Reads the bytes of a planet list: its planets in the order of the file, or at most ten of its
/// problems, one a line, and how many more there are.
Outcome<PlanetList> ReadPlanetList(std::string_view bytes);
/// Reads the planet list in a file. The reason of a failure is what a message box says of it.
Outcome<PlanetList> ReadPlanetListFile(const std::filesystem::path& path);

/// Puts 1..101 planets into the game, all of them unowned, and fills the pool's list and count.
void SetPlanets(Game& game, std::span<const PlanetRecord> planets);

} // namespace ksm
