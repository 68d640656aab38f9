// One row of the summary table, as it was last ranked.
#pragma once

#include <string>

namespace ksm {

/// The table keeps what the ranking wrote: a name typed since then appears with the next one.
struct TurnOrderRow {
    int Player = 0;              ///< 1..10
    std::string Name = "Player"; ///< UTF-8; as designed until the first ranking
    int Resources = 0;
    int Influence = 0;
    bool Italic = false; ///< a Dravik player without any agreement

    bool operator==(const TurnOrderRow&) const = default;
};

} // namespace ksm
