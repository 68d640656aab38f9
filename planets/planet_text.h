// What can be said of a planet.
#pragma once

#include "model/game_state.h"

#include <string>

namespace ksm {

/// Who owns the planet in this slot: "Quessin belongs to Dora". UTF-8; empty behind the last
/// planet.
std::string OwnerText(const Game& game, int planet);

/// What the planet's two figures are, and which technology it makes cheaper.
std::string PlanetFiguresText(const Game& game, int planet);

} // namespace ksm
