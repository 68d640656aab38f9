#include "saves/game_checks.h"

#include "planets/board_listing.h"
#include "trade/trade_agreements.h"

#include <algorithm>

namespace ksm {

namespace {

// Whether a box may be enabled depends on the past, but not every combination has one.
Outcome<> CheckBoxes(const PlayerRecord& player) {
    if ((player.PellamTools || player.Enviro) && !player.PellamToolsEnabled) {
        return Failure{"PellamToolsEnabled contradicts the boxes that are ticked."};
    }
    if ((player.Micro || player.PellamToolsEnabled) && !player.MicroEnabled) {
        return Failure{"MicroEnabled contradicts the other boxes."};
    }
    return {};
}

Outcome<> CheckPlayer(const GameState& state, int number) {
    const PlayerRecord& player = state.Game.Player(number);
    if (!player.Named && !player.Name.empty()) {
        return Failure{"Name belongs to a player who has no name yet."};
    }
    // The labels of the players in the game stand in the ring of the game, others in one that had a
    // place for them.
    const bool inGame = number <= state.Game.NumPlayers;
    if (inGame ? player.TradeRing != state.Game.NumPlayers : player.TradeRing < number) {
        return Failure{"TradeRing is one without a place for the player."};
    }
    return CheckBoxes(player);
}

// Each agreement was drawn once, three pixels wide, and is drawn until it ends.
bool AgreementsAreDrawn(const GameState& state) {
    const auto isAgreement = [](const Stroke& stroke) { return stroke.Width == 3; };
    return std::ranges::count_if(state.Game.TradeStrokes, isAgreement) == state.Game.TradeCount;
}

Outcome<> CheckTrade(const GameState& state) {
    for (int player = 1; player <= MaxPlayers; ++player) {
        for (int partner = 1; partner <= player; ++partner) {
            if (state.Game.Cell(player, partner) != NoAgreement &&
                (partner == player || state.Game.Cell(partner, player) != NoAgreement)) {
                return Failure{"TradeAgreements holds an agreement that cannot be made."};
            }
        }
    }
    const bool needsFirst = state.Game.TradeMode == TradeMode::AddPartner ||
                            state.Game.TradeMode == TradeMode::RemovePartner;
    if (needsFirst && state.Game.TradeFirst == 0) {
        return Failure{"TradeFirst names no player, but TradeMode needs one."};
    }
    // A law that is dissolved while its pair is picked leaves any pair behind, also with nobody.
    const bool picking = state.Game.TradeMode == TradeMode::IndependenceFirst ||
                         state.Game.TradeMode == TradeMode::IndependenceSecond;
    if (!picking && HaveAgreement(state.Game, state.Game.IndepFirst, state.Game.IndepSecond)) {
        return Failure{"TradeAgreements holds one of the pair under Economic Independence."};
    }
    if (!AgreementsAreDrawn(state)) {
        return Failure{"TradeStrokes does not hold one line for each agreement."};
    }
    return {};
}

Outcome<> CheckView(const GameState& state) {
    const GameView& view = state.View;
    const bool hasOwner = view.BoardPlayer == AllPlanets ||
                          (state.Game.Started() && view.BoardPlayer <= state.Game.NumPlayers);
    if (!hasOwner) {
        return Failure{"BoardPlayer is no owner that the board can show."};
    }
    if (view.BoardPosition > (state.Game.Started() ? BoardMaximum(state) : 0)) {
        return Failure{"BoardPosition lies behind the end of the list."};
    }
    return {};
}

} // namespace

Outcome<> CheckGame(const GameState& state) {
    for (int player = 1; player <= MaxPlayers; ++player) {
        if (const Outcome<> checked = CheckPlayer(state, player); !checked) {
            return Failure{"Players[" + std::to_string(player - 1) + "]." + checked.Reason()};
        }
    }
    const Outcome<> checked = CheckTrade(state);
    return checked ? CheckView(state) : checked;
}

} // namespace ksm
