// What races, technologies and agreements add to a player's figures.
#pragma once

#include "model/game_state.h"
#include "trade/trade_agreements.h"

namespace ksm {

// Technologies. `player` is 1..10.

/// Resources for every owned planet, and discount for every owned specialty planet.
inline int PellamToolsBonus(const Game& game, int player) {
    return game.Player(player).PellamTools ? 1 : 0;
}
/// Influence: one for each space dock.
inline int EnviroCompBonus(const Game& game, int player) {
    return game.Player(player).Enviro ? game.Player(player).SpaceDocks : 0;
}
/// Credits: three for each of the partners who are in the game. `partners` are the player's.
int MicroTechBonus(const Game& game, int player, PartnerSet partners);

// Races.

/// Influence: one for each agreement in play between any players.
inline int OrrunBonus(const Game& game, int player) {
    return game.Player(player).Race == Race::Orrun ? game.TradeCount : 0;
}
inline bool IsAltheranHome(const PlanetRecord& planet) {
    return planet.Name == TraitsOf(Race::Altheran).Homes[0];
}
/// Influence: one for each owned planet, as last counted, other than the home planet.
inline int AltheranBonus(const Game& game, int player) {
    const PlayerRecord& record = game.Player(player);
    return record.Race == Race::Altheran ? record.Figures.PlanetCount - record.Figures.AltheranHomes
                                         : 0;
}

// Agreements. `partners` are the player's.

/// Credits: the planets of each partner; the smaller count of the two under Trade Restrictions.
int TradeBonus(const Game& game, int player, PartnerSet partners);
/// Credits: five for each partner while Free Trade is in force.
inline int FreeTradeBonus(const Game& game, PartnerSet partners) {
    return game.Laws.FreeTrade ? 5 * static_cast<int>(partners.count()) : 0;
}

} // namespace ksm
