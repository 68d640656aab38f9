#include "trade/trade_laws.h"

namespace ksm {

TradeOutcome TFree_Click(GameState& state) {
    bool& inForce = state.Laws.FreeTrade;
    state.TradeInfo = inForce ? "\r\n\r\nFree Trade ends." : "\r\n\r\nFREE TRADE!";
    inForce = !inForce;
    return {.ValuesChange = true};
}

TradeOutcome TRestr_Click(GameState& state) {
    bool& inForce = state.Laws.TradeRestrictions;
    state.TradeInfo = inForce ? "\r\nTrade Restrictions dissolved." : "\r\nTRADE RESTRICTIONS!";
    inForce = !inForce;
    return {.ValuesChange = true};
}

TradeOutcome Tres_Click(GameState& state) {
    bool& inForce = state.Laws.EconomicIndependence;
    inForce = !inForce;
    if (inForce) {
        state.TradeInfo = "Select First Player...";
        state.TradeMode = TradeMode::IndependenceFirst;
        return {};
    }
    // A choice that is still pending goes on: TradeMode stays as it is.
    state.TradeInfo = "Forced Economic Independance dissolved.";
    state.IndepFirst = 0;
    state.IndepSecond = 0;
    return {.Diagram = DiagramChange::Redraw};
}

TradeOutcome TStop_Click(GameState& state) {
    state.TradeAgreements = {};
    state.TradeInfo = "\r\n\r\nTRADE STOP!";
    return {.ValuesChange = true, .Diagram = DiagramChange::Redraw};
}

} // namespace ksm
