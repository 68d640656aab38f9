#include "trade/trade_selection.h"

#include "trade/trade_agreements.h"
#include "trade/trade_diagram.h"

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

bool PickAddPartner(Game& game, int player) {
    const int first = game.TradeFirst;
    if (player == first) {
        return false;
    }
    game.TradeMode = TradeMode::Idle;
    if (IsIndependencePair(game, player, first)) {
        game.TradeInfo =
            Message(game, player, " and ", first, " are not allowed to trade with eachother");
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

bool PickRemovePartner(Game& game, int player) {
    const int first = game.TradeFirst;
    if (player == first) {
        return false;
    }
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

bool PickIndependenceSecond(Game& game, int player) {
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
    RedrawTradeDiagram(game);
    return breaks;
}

} // namespace

void BeginAdding(Game& game) {
    if (game.TradeMode == TradeMode::Idle) {
        game.TradeMode = TradeMode::AddFirst;
        game.TradeInfo = SelectFirstPlayer;
    }
}

void BeginRemoving(Game& game) {
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

bool PickPlayer(Game& game, int player) {
    switch (game.TradeMode) {
    case TradeMode::Idle:
        return false;
    case TradeMode::AddFirst:
        PickFirst(game, player, " makes Trade Agreement with...", TradeMode::AddPartner);
        return false;
    case TradeMode::AddPartner:
        return PickAddPartner(game, player);
    case TradeMode::RemoveFirst:
        PickFirst(game, player, " breaks Trade Agreement with...", TradeMode::RemovePartner);
        return false;
    case TradeMode::RemovePartner:
        return PickRemovePartner(game, player);
    case TradeMode::IndependenceFirst:
        game.TradeInfo = Name(game, player) + " is not allowed to trade with...";
        game.IndepFirst = player;
        game.TradeMode = TradeMode::IndependenceSecond;
        return false;
    case TradeMode::IndependenceSecond:
        return PickIndependenceSecond(game, player);
    }
    return false;
}

} // namespace ksm
