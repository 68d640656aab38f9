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
    const Outcome<PlanetList> list = ReadPlanetList(bytes);
    if (!list) {
        Require(list.Reason().size() < 2000);
        return 0;
    }
    Require(!list->empty() && list->size() <= MaxPlanets);
    GameState state;
    SetPlanets(state.Game, *list);
    for (const PlanetRecord& planet : *list) {
        Require(planet.Name.find_first_of(",\r") == std::string::npos);
    }
    return 0;
}
