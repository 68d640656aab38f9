#include "economy/tech_boxes.h"

namespace ksm {

void UpdateTechBoxes(PlayerRecord& player) {
    if (player.Enviro) {
        player.PellamToolsEnabled = true;
        player.MicroEnabled = true;
    } else {
        player.PellamToolsEnabled = player.PellamToolsEnabled && player.PellamTools;
        player.MicroEnabled = player.MicroEnabled && player.Micro;
    }
    if (player.PellamTools) {
        player.PellamToolsEnabled = true;
        player.MicroEnabled = true;
    }
}

} // namespace ksm
