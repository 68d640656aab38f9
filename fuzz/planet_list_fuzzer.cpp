// Reads any bytes as a planet list.

#include "planets/planet_list_file.h"

#include <cstdlib>

namespace {

void Require(bool condition) {
    if (!condition) {
        std::abort();
    }
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    using namespace ksm;
    // NOLINTNEXTLINE(cppcoreguidelines-pro-type-reinterpret-cast): the same bytes.
    const std::string_view bytes(reinterpret_cast<const char*>(data), size);
    const PlanetListResult list = ReadPlanetList(bytes);
    Require(list.Planets.size() <= MaxPlanets);
    if (list.Problems.empty()) {
        Require(!list.Planets.empty());
        GameState state;
        TakePlanets(state.Game, list.Planets);
        for (const PlanetRecord& planet : list.Planets) {
            Require(planet.Name.find_first_of(",\r") == std::string::npos);
        }
    } else {
        Require(DescribeProblems("list", list.Problems).size() < 2000);
    }
    return 0;
}
