#include "trade/trade_laws.h"

#include "trade/trade_diagram.h"

namespace ksm {

void ToggleFreeTrade(Game& game) {
    bool& inForce = game.Laws.FreeTrade;
    game.TradeInfo = inForce ? "\r\n\r\nFree Trade ends." : "\r\n\r\nFREE TRADE!";
    inForce = !inForce;
}

void ToggleTradeRestrictions(Game& game) {
    bool& inForce = game.Laws.TradeRestrictions;
    game.TradeInfo = inForce ? "\r\nTrade Restrictions dissolved." : "\r\nTRADE RESTRICTIONS!";
    inForce = !inForce;
}

void ToggleEconomicIndependence(Game& game) {
    bool& inForce = game.Laws.EconomicIndependence;
    inForce = !inForce;
    if (inForce) {
        game.TradeInfo = "Select First Player...";
        game.TradeMode = TradeMode::IndependenceFirst;
        return;
    }
    // A choice that is still pending goes on: TradeMode stays as it is.
    game.TradeInfo = "Forced Economic Independance dissolved.";
    game.IndepFirst = 0;
    game.IndepSecond = 0;
    RedrawTradeDiagram(game);
}

void StopTrade(Game& game) {
    game.TradeAgreements = {};
    RedrawTradeDiagram(game);
    game.TradeInfo = "\r\n\r\nTRADE STOP!";
}

} // namespace ksm
