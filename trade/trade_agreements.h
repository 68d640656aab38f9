// Who trades with whom, and the clicks that record it.
#pragma once

#include "model/game_state.h"

#include <bitset>
#include <string>

namespace ksm {

/// Whether the two players hold an agreement, whichever of them made it.
bool HaveAgreement(const Game& game, int one, int other);

/// Bit j (1..10) is set when the player holds an agreement with player j.
using PartnerSet = std::bitset<OwnerSlots>;
PartnerSet TradePartners(const Game& game, int player);

/// "There is one Trade Agreement in play." and the like.
std::string TradeCountSentence(int agreements);

enum class DiagramChange { None, AddLine, Redraw };

/// What the window has to do after a click on the trade panel or on a trade law. The values come
/// first, then the diagram.
struct TradeOutcome {
    bool ValuesChange = false;
    DiagramChange Diagram = DiagramChange::None;
    // The new line for `AddLine`: from the player who made the agreement to the partner.
    int From = 0;
    int To = 0;

    bool operator==(const TradeOutcome&) const = default;
};

/// Starts a selection unless one is pending.
void AddTAbutton_Click(Game& game);
void RemoveTAButton_Click(Game& game);

/// Advances the pending selection; `player` is 1..10.
TradeOutcome TradePlayer_Click(Game& game, int player);

} // namespace ksm
