#include "economy/laws.h"

namespace ksm {

void MenuLabour_Click(Game& game) {
    game.Laws.LabourUnion = !game.Laws.LabourUnion;
}

void MenuOrlen_Click(Game& game) {
    game.Laws.OrlenHouseRules = !game.Laws.OrlenHouseRules;
}

} // namespace ksm
