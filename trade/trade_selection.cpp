#include "trade/trade_selection.h"

#include "trade/trade_agreements.h"
#include "trade/trade_diagram.h"

namespace ksm {

namespace {

constexpr auto SelectFirstPlayer = "\r\nSelect first player...";

const std::string& Name(const Game& game, int player) { return game.Player(player).Name; }

// The player clicked last is named first.
std::string Message(const Game& game, int last, const char* joint, int first, const char* ending) {
    return Name(game, last) + joint + Name(game, first) + ending;
}

std::string NotAllowed(const Game& game, int last, int first) {
    return Message(game, last, " and ", first, " are not allowed to trade with eachother");
}

void BreakAgreement(Game& game, int one, int other) {
    game.Cell(one, other) = NoAgreement;
    game.Cell(other, one) = NoAgreement;
}

bool IsIndependencePair(const Game& game, int one, int other) {
    return (one == game.IndepFirst && other == game.IndepSecond) ||
           (one == game.IndepSecond && other == game.IndepFirst);
}

void PickFirst(Game& game, int player, const char* ending, TradeMode next) {
    game.TradeInfo = Name(game, player) + ending;
    game.TradeMode = next;
    (next == TradeMode::IndependenceSecond ? game.IndepFirst : game.TradeFirst) = player;
}

bool MakeAgreement(Game& game, int first, int player) {
    game.TradeMode = TradeMode::Idle;
    if (IsIndependencePair(game, player, first)) {
        game.TradeInfo = NotAllowed(game, player, first);
        return false;
    }
    if (HaveAgreement(game, first, player)) {
        game.TradeInfo = Message(game, player, " and ", first, " already have a TA");
        return false;
    }
    game.Cell(first, player) = Agreement;
    game.TradeInfo = Message(game, player, " and ", first, " make a TA");
    DrawTradeLine(game, first, player);
    return true;
}

bool EndAgreement(Game& game, int first, int player) {
    game.TradeMode = TradeMode::Idle;
    if (!HaveAgreement(game, first, player)) {
        game.TradeInfo = Message(game, player, " & ", first, " don't have a TA to break");
        return false;
    }
    BreakAgreement(game, first, player);
    game.TradeInfo = Message(game, player, " and ", first, " break their TA");
    RedrawTradeDiagram(game);
    return true;
}

// Dissolving the law in the middle of the choice leaves no first player.
bool ForbidToTrade(Game& game, int first, int player) {
    game.TradeMode = TradeMode::Idle;
    game.TradeInfo = NotAllowed(game, player, first);
    const bool traded = HaveAgreement(game, first, player);
    BreakAgreement(game, first, player);
    game.IndepSecond = player;
    RedrawTradeDiagram(game);
    return traded;
}

} // namespace

void BeginAdding(Game& game) {
    if (game.TradeMode == TradeMode::Idle) {
        game.TradeMode = TradeMode::AddFirst;
        game.TradeInfo = SelectFirstPlayer;
    }
}

void BeginRemoving(Game& game) {
    if (game.TradeMode == TradeMode::Idle && game.TradeCount == 0) {
        game.TradeInfo = "There are no Trade Agreements to remove.";
    } else if (game.TradeMode == TradeMode::Idle) {
        game.TradeMode = TradeMode::RemoveFirst;
        game.TradeInfo = SelectFirstPlayer;
    }
}

bool PickPlayer(Game& game, int player) {
    const bool isPartner = player != game.TradeFirst;
    switch (game.TradeMode) {
    case TradeMode::Idle:
        break;
    case TradeMode::AddFirst:
        PickFirst(game, player, " makes Trade Agreement with...", TradeMode::AddPartner);
        break;
    case TradeMode::AddPartner:
        return isPartner && MakeAgreement(game, game.TradeFirst, player);
    case TradeMode::RemoveFirst:
        PickFirst(game, player, " breaks Trade Agreement with...", TradeMode::RemovePartner);
        break;
    case TradeMode::RemovePartner:
        return isPartner && EndAgreement(game, game.TradeFirst, player);
    case TradeMode::IndependenceFirst:
        PickFirst(game, player, " is not allowed to trade with...", TradeMode::IndependenceSecond);
        break;
    case TradeMode::IndependenceSecond:
        return ForbidToTrade(game, game.IndepFirst, player);
    }
    return false;
}

} // namespace ksm
