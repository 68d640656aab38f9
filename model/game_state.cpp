#include "model/game_state.h"

#include "model/player_labels.h"

namespace ksm {

Game::Game() : TradeInfo("\r\nPress Add to make a Trade Agreement") {
    for (int player = 1; player <= MaxPlayers; ++player) {
        SetDesignLabels(Player(player), player);
        Player(player).TradeRing = player <= NumPlayers ? NumPlayers : MaxPlayers;
        TurnOrderRows.at(static_cast<std::size_t>(player - 1)).Player = player;
    }
}

} // namespace ksm
