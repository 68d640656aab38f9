#include "trade/trade_laws.h"

namespace ksm {

TradeOutcome TFree_Click(Game& game) {
    bool& inForce = game.Laws.FreeTrade;
    game.TradeInfo = inForce ? "\r\n\r\nFree Trade ends." : "\r\n\r\nFREE TRADE!";
    inForce = !inForce;
    return {.ValuesChange = true};
}

TradeOutcome TRestr_Click(Game& game) {
    bool& inForce = game.Laws.TradeRestrictions;
    game.TradeInfo = inForce ? "\r\nTrade Restrictions dissolved." : "\r\nTRADE RESTRICTIONS!";
    inForce = !inForce;
    return {.ValuesChange = true};
}

TradeOutcome Tres_Click(Game& game) {
    bool& inForce = game.Laws.EconomicIndependence;
    inForce = !inForce;
    if (inForce) {
        game.TradeInfo = "Select First Player...";
        game.TradeMode = TradeMode::IndependenceFirst;
        return {};
    }
    // A choice that is still pending goes on: TradeMode stays as it is.
    game.TradeInfo = "Forced Economic Independance dissolved.";
    game.IndepFirst = 0;
    game.IndepSecond = 0;
    return {.Diagram = DiagramChange::Redraw};
}

TradeOutcome TStop_Click(Game& game) {
    game.TradeAgreements = {};
    game.TradeInfo = "\r\n\r\nTRADE STOP!";
    return {.ValuesChange = true, .Diagram = DiagramChange::Redraw};
}

} // namespace ksm
