#include "economy/laws.h"

namespace ksm {

void ToggleLabourUnion(Game& game) {
    game.Laws.LabourUnion = !game.Laws.LabourUnion;
}

void ToggleOrlenHouseRules(Game& game) {
    game.Laws.OrlenHouseRules = !game.Laws.OrlenHouseRules;
}

} // namespace ksm
