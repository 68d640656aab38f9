// Who trades with whom.
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

} // namespace ksm
