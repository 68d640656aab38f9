#include "economy/tech_boxes.h"

namespace ksm {

void UpdateTechBoxes(PlayerControls& controls) {
    if (controls.Enviro) {
        controls.PellamToolsEnabled = true;
        controls.MicroEnabled = true;
    } else {
        controls.PellamToolsEnabled = controls.PellamToolsEnabled && controls.PellamTools;
        controls.MicroEnabled = controls.MicroEnabled && controls.Micro;
    }
    if (controls.PellamTools) {
        controls.PellamToolsEnabled = true;
        controls.MicroEnabled = true;
    }
}

} // namespace ksm
