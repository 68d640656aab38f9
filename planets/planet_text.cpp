#include "planets/planet_text.h"

#include "model/player_labels.h"

namespace ksm {

namespace {

const char* ColourName(Specialty specialty) {
    constexpr std::array<const char*, SpecialtyCount> names{"no", "blue", "green", "red"};
    return names.at(static_cast<std::size_t>(specialty));
}

} // namespace

std::string OwnerText(const Game& game, int planet) {
    if (planet >= game.NumPlanets) {
        return {};
    }
    const PlanetRecord& record = game.Planet(planet);
    return record.Name + " belongs to " +
           (record.Owner == NeutralOwner ? "nobody" : SpokenName(game, record.Owner));
}

std::string PlanetFiguresText(const Game& game, int planet) {
    if (planet >= game.NumPlanets) {
        return {};
    }
    const PlanetRecord& record = game.Planet(planet);
    std::string text = std::to_string(record.Resources) +
                       (record.Resources == 1 ? " resource, " : " resources, ") +
                       std::to_string(record.Influence) + " influence";
    if (record.Specialty != Specialty::None) {
        text += std::string("\nmakes ") + ColourName(record.Specialty) +
                " technology cheaper by its resources";
        text += game.Player(record.Owner).PellamTools ? " and one more (Pellam Tools)" : "";
    }
    return text;
}

} // namespace ksm
