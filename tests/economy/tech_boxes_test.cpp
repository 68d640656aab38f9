#include "economy/tech_boxes.h"

#include <gtest/gtest.h>

namespace ksm {
namespace {

TEST(UpdateTechBoxes, EnablesWhatIsOwnedOrCanBeResearched) {
    // Owned: Enviro Comp., Pellam Tools, Micro Tech.; enabled before and after: the latter two.
    const std::tuple<const char*, std::array<bool, 3>, std::array<bool, 2>, std::array<bool, 2>>
        cases[]{
            {"Enviro Comp. enables both", {true, false, false}, {false, false}, {true, true}},
            {"nothing owned disables both", {false, false, false}, {true, true}, {false, false}},
            {"Pellam Tools enables Micro Tech.", {false, true, false}, {true, false}, {true, true}},
            {"Micro Tech. keeps itself only", {false, false, true}, {true, true}, {false, true}},
        };
    for (const auto& [name, owned, before, after] : cases) {
        PlayerRecord boxes;
        boxes.Enviro = owned[0];
        boxes.PellamTools = owned[1];
        boxes.Micro = owned[2];
        boxes.PellamToolsEnabled = before[0];
        boxes.MicroEnabled = before[1];
        UpdateTechBoxes(boxes);
        EXPECT_EQ((std::array{boxes.PellamToolsEnabled, boxes.MicroEnabled}), after) << name;
        EXPECT_EQ((std::array{boxes.Enviro, boxes.PellamTools, boxes.Micro}), owned) << name;
    }
}

} // namespace
} // namespace ksm
