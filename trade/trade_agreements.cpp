#include "trade/trade_agreements.h"

namespace ksm {

namespace {

constexpr auto SelectFirstPlayer = "\r\nSelect first player...";

const std::string& Name(const GameState& state, int player) {
    return state.Player(player).Name;
}

void BreakAgreement(GameState& state, int one, int other) {
    state.Cell(one, other) = NoAgreement;
    state.Cell(other, one) = NoAgreement;
}

bool IsIndependencePair(const GameState& state, int one, int other) {
    return (one == state.IndepFirst && other == state.IndepSecond) ||
           (one == state.IndepSecond && other == state.IndepFirst);
}

// The player clicked last is named first.
std::string Message(const GameState& state, int last, const char* joint, int first,
                    const char* ending) {
    return Name(state, last) + joint + Name(state, first) + ending;
}

void PickFirst(GameState& state, int player, const char* ending, TradeMode next) {
    state.TradeInfo = Name(state, player) + ending;
    state.TradeFirst = player;
    state.TradeMode = next;
}

TradeOutcome PickAddPartner(GameState& state, int player) {
    const int first = state.TradeFirst;
    if (player == first) {
        return {};
    }
    state.TradeMode = TradeMode::Idle;
    if (IsIndependencePair(state, player, first)) {
        state.TradeInfo =
            Message(state, player, " and ", first, " are not allowed to trade with eachother");
        return {};
    }
    if (HaveAgreement(state, first, player)) {
        state.TradeInfo = Message(state, player, " and ", first, " already have a TA");
        return {};
    }
    state.Cell(first, player) = Agreement;
    state.TradeInfo = Message(state, player, " and ", first, " make a TA");
    return {true, DiagramChange::AddLine, first, player};
}

TradeOutcome PickRemovePartner(GameState& state, int player) {
    const int first = state.TradeFirst;
    if (player == first) {
        return {};
    }
    state.TradeMode = TradeMode::Idle;
    if (!HaveAgreement(state, first, player)) {
        state.TradeInfo = Message(state, player, " & ", first, " don't have a TA to break");
        return {};
    }
    BreakAgreement(state, first, player);
    state.TradeInfo = Message(state, player, " and ", first, " break their TA");
    return {true, DiagramChange::Redraw};
}

TradeOutcome PickIndependenceSecond(GameState& state, int player) {
    const int first = state.IndepFirst;
    state.TradeInfo =
        Message(state, player, " and ", first, " are not allowed to trade with eachother");
    // Dissolving the law in the middle of the choice leaves no first player.
    const bool breaks = HaveAgreement(state, first, player);
    if (breaks) {
        BreakAgreement(state, first, player);
    }
    state.IndepSecond = player;
    state.TradeMode = TradeMode::Idle;
    return {breaks, DiagramChange::Redraw};
}

} // namespace

bool HaveAgreement(const GameState& state, int one, int other) {
    return state.Cell(one, other) != NoAgreement || state.Cell(other, one) != NoAgreement;
}

PartnerSet TradePartners(const GameState& state, int player) {
    const auto self = static_cast<std::size_t>(player);
    PartnerSet partners;
    for (std::size_t other = 1; other <= MaxPlayers; ++other) {
        partners[other] =
            (state.TradeAgreements[self][other] | state.TradeAgreements[other][self]) != 0;
    }
    return partners;
}

std::string TradeCountSentence(int agreements) {
    switch (agreements) {
    case 0:
        return "There are no Trade Agreements in play.";
    case 1:
        return "There is one Trade Agreement in play.";
    default:
        return "There are " + std::to_string(agreements) + " Trade Agreements in play.";
    }
}

void AddTAbutton_Click(GameState& state) {
    if (state.TradeMode == TradeMode::Idle) {
        state.TradeMode = TradeMode::AddFirst;
        state.TradeInfo = SelectFirstPlayer;
    }
}

void RemoveTAButton_Click(GameState& state) {
    if (state.TradeMode != TradeMode::Idle) {
        return;
    }
    if (state.TradeCount == 0) {
        state.TradeInfo = "There are no Trade Agreements to remove.";
        return;
    }
    state.TradeMode = TradeMode::RemoveFirst;
    state.TradeInfo = SelectFirstPlayer;
}

TradeOutcome TradePlayer_Click(GameState& state, int player) {
    switch (state.TradeMode) {
    case TradeMode::Idle:
        return {};
    case TradeMode::AddFirst:
        PickFirst(state, player, " makes Trade Agreement with...", TradeMode::AddPartner);
        return {};
    case TradeMode::AddPartner:
        return PickAddPartner(state, player);
    case TradeMode::RemoveFirst:
        PickFirst(state, player, " breaks Trade Agreement with...", TradeMode::RemovePartner);
        return {};
    case TradeMode::RemovePartner:
        return PickRemovePartner(state, player);
    case TradeMode::IndependenceFirst:
        state.TradeInfo = Name(state, player) + " is not allowed to trade with...";
        state.IndepFirst = player;
        state.TradeMode = TradeMode::IndependenceSecond;
        return {};
    case TradeMode::IndependenceSecond:
        return PickIndependenceSecond(state, player);
    }
    return {};
}

} // namespace ksm
