#include "trade/trade_agreements.h"

namespace ksm {

namespace {

constexpr auto SelectFirstPlayer = "\r\nSelect first player...";

const std::string& Name(const Game& game, int player) {
    return game.Player(player).Name;
}

void BreakAgreement(Game& game, int one, int other) {
    game.Cell(one, other) = NoAgreement;
    game.Cell(other, one) = NoAgreement;
}

bool IsIndependencePair(const Game& game, int one, int other) {
    return (one == game.IndepFirst && other == game.IndepSecond) ||
           (one == game.IndepSecond && other == game.IndepFirst);
}

// The player clicked last is named first.
std::string Message(const Game& game, int last, const char* joint, int first, const char* ending) {
    return Name(game, last) + joint + Name(game, first) + ending;
}

void PickFirst(Game& game, int player, const char* ending, TradeMode next) {
    game.TradeInfo = Name(game, player) + ending;
    game.TradeFirst = player;
    game.TradeMode = next;
}

TradeOutcome PickAddPartner(Game& game, int player) {
    const int first = game.TradeFirst;
    if (player == first) {
        return {};
    }
    game.TradeMode = TradeMode::Idle;
    if (IsIndependencePair(game, player, first)) {
        game.TradeInfo =
            Message(game, player, " and ", first, " are not allowed to trade with eachother");
        return {};
    }
    if (HaveAgreement(game, first, player)) {
        game.TradeInfo = Message(game, player, " and ", first, " already have a TA");
        return {};
    }
    game.Cell(first, player) = Agreement;
    game.TradeInfo = Message(game, player, " and ", first, " make a TA");
    return {true, DiagramChange::AddLine, first, player};
}

TradeOutcome PickRemovePartner(Game& game, int player) {
    const int first = game.TradeFirst;
    if (player == first) {
        return {};
    }
    game.TradeMode = TradeMode::Idle;
    if (!HaveAgreement(game, first, player)) {
        game.TradeInfo = Message(game, player, " & ", first, " don't have a TA to break");
        return {};
    }
    BreakAgreement(game, first, player);
    game.TradeInfo = Message(game, player, " and ", first, " break their TA");
    return {true, DiagramChange::Redraw};
}

TradeOutcome PickIndependenceSecond(Game& game, int player) {
    const int first = game.IndepFirst;
    game.TradeInfo =
        Message(game, player, " and ", first, " are not allowed to trade with eachother");
    // Dissolving the law in the middle of the choice leaves no first player.
    const bool breaks = HaveAgreement(game, first, player);
    if (breaks) {
        BreakAgreement(game, first, player);
    }
    game.IndepSecond = player;
    game.TradeMode = TradeMode::Idle;
    return {breaks, DiagramChange::Redraw};
}

} // namespace

bool HaveAgreement(const Game& game, int one, int other) {
    return game.Cell(one, other) != NoAgreement || game.Cell(other, one) != NoAgreement;
}

PartnerSet TradePartners(const Game& game, int player) {
    const auto self = static_cast<std::size_t>(player);
    PartnerSet partners;
    for (std::size_t other = 1; other <= MaxPlayers; ++other) {
        partners[other] =
            (game.TradeAgreements[self][other] | game.TradeAgreements[other][self]) != 0;
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

void AddTAbutton_Click(Game& game) {
    if (game.TradeMode == TradeMode::Idle) {
        game.TradeMode = TradeMode::AddFirst;
        game.TradeInfo = SelectFirstPlayer;
    }
}

void RemoveTAButton_Click(Game& game) {
    if (game.TradeMode != TradeMode::Idle) {
        return;
    }
    if (game.TradeCount == 0) {
        game.TradeInfo = "There are no Trade Agreements to remove.";
        return;
    }
    game.TradeMode = TradeMode::RemoveFirst;
    game.TradeInfo = SelectFirstPlayer;
}

TradeOutcome TradePlayer_Click(Game& game, int player) {
    switch (game.TradeMode) {
    case TradeMode::Idle:
        return {};
    case TradeMode::AddFirst:
        PickFirst(game, player, " makes Trade Agreement with...", TradeMode::AddPartner);
        return {};
    case TradeMode::AddPartner:
        return PickAddPartner(game, player);
    case TradeMode::RemoveFirst:
        PickFirst(game, player, " breaks Trade Agreement with...", TradeMode::RemovePartner);
        return {};
    case TradeMode::RemovePartner:
        return PickRemovePartner(game, player);
    case TradeMode::IndependenceFirst:
        game.TradeInfo = Name(game, player) + " is not allowed to trade with...";
        game.IndepFirst = player;
        game.TradeMode = TradeMode::IndependenceSecond;
        return {};
    case TradeMode::IndependenceSecond:
        return PickIndependenceSecond(game, player);
    }
    return {};
}

} // namespace ksm
