#include "planets/planet_text.h"

#include "model/player_labels.h"

namespace ksm {

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
        constexpr std::array<const char*, SpecialtyCount> colours{"no", "blue", "green", "red"};
        text += std::string("\nmakes ") + colours[static_cast<std::size_t>(record.Specialty)] +
                " technology cheaper by its resources";
        text += game.Player(record.Owner).PellamTools ? " and one more (Pellam Tools)" : "";
    }
    return text;
}

} // namespace ksm
