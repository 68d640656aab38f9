// The lines between the players' trade labels.
#pragma once

#include "model/game_state.h"

namespace ksm {

/// Adds the line of an agreement that player `from` made, in that player's colour.
void DrawTradeLine(Game& game, int from, int to);

/// Clears the diagram, then draws the agreements row by row and the independence pair on top.
void RedrawTradeDiagram(Game& game);

} // namespace ksm
