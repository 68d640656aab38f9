// What races, technologies and agreements add to a player's figures.
#pragma once

#include "model/game_state.h"
#include "trade/trade_agreements.h"

namespace ksm {

// Technologies. `player` is 1..10.

/// Resources for every owned planet, and discount for every owned specialty planet.
inline int PellamToolsBonus(const GameState& state, int player) {
    return state.Controls[player].PellamTools ? 1 : 0;
}
/// Influence: one for each space dock.
inline int EnviroCompBonus(const GameState& state, int player) {
    return state.Controls[player].Enviro ? state.Controls[player].SpaceDocks : 0;
}
/// Credits: three for each partner among the players in the game.
int MicroTechBonus(const GameState& state, int player, PartnerSet partners);
inline int MicroTechBonus(const GameState& state, int player) {
    return MicroTechBonus(state, player, TradePartners(state, player));
}

// Races.

/// Influence: one for each agreement in play between any players.
inline int OrrunBonus(const GameState& state, int player) {
    return state.Controls[player].Race == Race::Orrun ? state.TradeCount : 0;
}
inline bool IsAltheranHome(const PlanetRecord& planet) {
    return planet.Name == std::string_view("Quessin");
}
int CountAltheranHomes(const GameState& state, int player);
/// Influence: one for each owned planet other than the home planet. `homes` are the player's.
inline int AltheranBonus(const GameState& state, int player, int homes) {
    return state.Controls[player].Race == Race::Altheran ? state.Player(player).PlanetCount - homes
                                                         : 0;
}
inline int AltheranBonus(const GameState& state, int player) {
    return AltheranBonus(state, player, CountAltheranHomes(state, player));
}

// Agreements. `partners` are the player's.

/// Credits: the planets of each partner; the smaller count of the two under Trade Restrictions.
int TradeBonus(const GameState& state, int player, PartnerSet partners);
/// Credits: five for each partner while Free Trade is in force.
inline int FreeTradeBonus(const GameState& state, PartnerSet partners) {
    return state.Laws.FreeTrade ? 5 * static_cast<int>(partners.count()) : 0;
}

} // namespace ksm
