#include "saves/game_checks.h"

#include "planets/board_listing.h"
#include "trade/trade_agreements.h"

#include <algorithm>

namespace ksm {

namespace {

// Whether a box may be enabled depends on the past, but not every combination has one.
const char* CheckBoxes(const PlayerRecord& player) {
    if ((player.PellamTools || player.Enviro) && !player.PellamToolsEnabled) {
        return "PellamToolsEnabled contradicts the boxes that are ticked.";
    }
    if ((player.Micro || player.PellamToolsEnabled) && !player.MicroEnabled) {
        return "MicroEnabled contradicts the other boxes.";
    }
    return nullptr;
}

const char* CheckPlayer(const GameState& state, int number) {
    const PlayerRecord& player = state.Game.Player(number);
    if (!player.Named && !player.Name.empty()) {
        return "Name belongs to a player who has no name yet.";
    }
    // The labels of the players in the game stand in the ring of the game, others in one that had a
    // place for them.
    const bool inGame = number <= state.Game.NumPlayers;
    if (inGame ? player.TradeRing != state.Game.NumPlayers : player.TradeRing < number) {
        return "TradeRing is one without a place for the player.";
    }
    return CheckBoxes(player);
}

// Each agreement was drawn once, three pixels wide, and is drawn until it ends.
bool AgreementsAreDrawn(const GameState& state) {
    const auto isAgreement = [](const Stroke& stroke) { return stroke.Width == 3; };
    return std::ranges::count_if(state.Game.TradeStrokes, isAgreement) == state.Game.TradeCount;
}

const char* CheckTrade(const GameState& state) {
    for (int player = 1; player <= MaxPlayers; ++player) {
        for (int partner = 1; partner <= player; ++partner) {
            if (state.Game.Cell(player, partner) != NoAgreement &&
                (partner == player || state.Game.Cell(partner, player) != NoAgreement)) {
                return "TradeAgreements holds an agreement that cannot be made.";
            }
        }
    }
    const bool needsFirst = state.Game.TradeMode == TradeMode::AddPartner ||
                            state.Game.TradeMode == TradeMode::RemovePartner;
    if (needsFirst && state.Game.TradeFirst == 0) {
        return "TradeFirst names no player, but TradeMode needs one.";
    }
    // A law that is dissolved while its pair is picked leaves any pair behind, also with nobody.
    const bool picking = state.Game.TradeMode == TradeMode::IndependenceFirst ||
                         state.Game.TradeMode == TradeMode::IndependenceSecond;
    if (!picking && HaveAgreement(state.Game, state.Game.IndepFirst, state.Game.IndepSecond)) {
        return "TradeAgreements holds one of the pair under Economic Independence.";
    }
    if (!AgreementsAreDrawn(state)) {
        return "TradeStrokes does not hold one line for each agreement.";
    }
    return nullptr;
}

const char* CheckView(const GameState& state) {
    const GameView& view = state.View;
    const bool hasOwner = view.BoardPlayer == AllPlanets ||
                          (state.Game.Started() && view.BoardPlayer <= state.Game.NumPlayers);
    if (!hasOwner) {
        return "BoardPlayer is no owner that the board can show.";
    }
    if (view.BoardPosition > (state.Game.Started() ? BoardMaximum(state) : 0)) {
        return "BoardPosition lies behind the end of the list.";
    }
    return nullptr;
}

} // namespace

std::string FindContradiction(const GameState& state) {
    for (int player = 1; player <= MaxPlayers; ++player) {
        if (const char* problem = CheckPlayer(state, player)) {
            return "Players[" + std::to_string(player - 1) + "]." + problem;
        }
    }
    for (const auto& check : {CheckTrade, CheckView}) {
        if (const char* problem = check(state)) {
            return problem;
        }
    }
    return {};
}

} // namespace ksm
