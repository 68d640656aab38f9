// The technologies that a player can own.
#pragma once

#include "model/player_record.h"

#include <array>

namespace ksm {

struct Technology {
    const char* Caption = "";
    bool PlayerRecord::* Owned = nullptr;
    const char* Tip = ""; ///< what it brings, and when its box can be ticked
};

inline constexpr Technology EnviroComp{"Enviro Comp.", &PlayerRecord::Enviro,
                                       "adds the space docks to the influence"};
inline constexpr Technology PellamTools{
    "Pellam Tools", &PlayerRecord::PellamTools,
    "one resource more for each planet, which makes technology cheaper, too\n"
    "needs Enviro Comp."};
inline constexpr Technology MicroTech{"Micro Tech.", &PlayerRecord::Micro,
                                      "three credits for each trade partner\n"
                                      "needs Enviro Comp. or Pellam Tools"};

inline constexpr std::array<Technology, 3> Technologies{EnviroComp, PellamTools, MicroTech};

} // namespace ksm
