#include "economy/value_update.h"
#include "trade/trade_agreements.h"
#include "trade/trade_diagram.h"
#include "trade/trade_laws.h"
#include "trade/trade_selection.h"

#include <gtest/gtest.h>

namespace ksm {
namespace {

/// Ten players whose names are "P1" to "P10".
Game NamedPlayers() {
    Game game;
    for (int player = 1; player <= MaxPlayers; ++player) {
        game.Player(player).Name = std::string("P").append(std::to_string(player));
    }
    return game;
}

enum Click : int { Tres = 0, TStop = -1, TFree = -2, TRestr = -3, Add = -4, Remove = -5 };

/// A click on a button, a law or the label of a player.
void Do(Game& game, int click) {
    constexpr std::array clicks{ToggleEconomicIndependence, StopTrade,   ToggleFreeTrade,
                                ToggleTradeRestrictions,    BeginAdding, BeginRemoving};
    if (click > 0) {
        const TradeTable before = game.TradeAgreements;
        const bool figuresFollow = PickPlayer(game, click);
        EXPECT_EQ(figuresFollow, game.TradeAgreements != before);
    } else {
        clicks.at(static_cast<std::size_t>(-click))(game);
    }
    UpdateValues(game);
}

// After the clicks: the message, the state of the selection and who trades (as made).
struct ClickCase {
    std::vector<int> Clicks;
    std::string Info;
    TradeMode Mode;
    std::vector<std::pair<int, int>> Agreements = {};
};

using enum TradeMode;
constexpr auto NotAllowed = "P7 and P2 are not allowed to trade with eachother";
const std::vector<ClickCase> ClickCases{
    {{3}, "\r\nPress Add to make a Trade Agreement", Idle},
    {{Add, 3, 3}, "P3 makes Trade Agreement with...", AddPartner},
    {{Add, 3, 5}, "P5 and P3 make a TA", Idle, {{3, 5}}},
    {{Add, 3, 5, Add, 5, 3}, "P3 and P5 already have a TA", Idle, {{3, 5}}},
    {{Remove}, "There are no Trade Agreements to remove.", Idle},
    {{Add, 3, 5, Remove}, "\r\nSelect first player...", RemoveFirst, {{3, 5}}},
    {{Add, 3, 5, Remove, 5, 3}, "P3 and P5 break their TA", Idle},
    {{Add, 3, 5, Remove, 2, 4}, "P4 & P2 don't have a TA to break", Idle, {{3, 5}}},
    {{Tres, 2, 7, Add, 7, 2}, "P2 and P7 are not allowed to trade with eachother", Idle},
    {{Add, 7, 2, Tres, 2, 7}, NotAllowed, Idle},
    {{Tres, 2, 2, Add, 2, 7}, "P7 and P2 make a TA", Idle, {{2, 7}}},
    {{Tres, 2, 7, Tres, Add, 2, 7}, "P7 and P2 make a TA", Idle, {{2, 7}}},
    // A law switched on abandons the selection; dissolved while choosing, the choice goes on.
    {{Add, 4, Tres, 2}, "P2 is not allowed to trade with...", IndependenceSecond},
    {{Tres, 2, Tres, 7}, "P7 and  are not allowed to trade with eachother", Idle},
    {{Add, 1, 2, Add, 4, 3, TStop}, "\r\n\r\nTRADE STOP!", Idle},
    {{TFree, TFree}, "\r\n\r\nFree Trade ends.", Idle},
    {{TRestr, TRestr}, "\r\nTrade Restrictions dissolved.", Idle},
    {{Add, 1, 2, Add, 4, TStop}, "\r\n\r\nTRADE STOP!", AddPartner},
};

TEST(TradeProtocol, ClicksRecordAgreements) {
    for (const ClickCase& row : ClickCases) {
        SCOPED_TRACE(testing::PrintToString(row.Clicks));
        Game game = NamedPlayers();
        for (const int click : row.Clicks) {
            Do(game, click);
        }
        TradeTable wanted{};
        for (const auto& [maker, partner] : row.Agreements) {
            wanted.at(static_cast<std::size_t>(maker)).at(static_cast<std::size_t>(partner)) = -1;
        }
        EXPECT_EQ(game.TradeInfo, row.Info);
        EXPECT_EQ(game.TradeMode, row.Mode);
        EXPECT_EQ(game.TradeAgreements, wanted);
        const std::size_t drawn = game.TradeStrokes.size();
        RedrawTradeDiagram(game);
        EXPECT_EQ(drawn, game.TradeStrokes.size());
    }
}

} // namespace
} // namespace ksm
