// System calls that fail, or in which the program is killed.
#pragma once

#include <string_view>

namespace ksm {

struct SystemFault {
    std::string_view Call = {}; ///< fsync, rename, remove, write; close of a written file
    int Number = 0;             ///< which call from now on, 1 for the next; 0 for none
    bool Kills = false;         ///< ends the process before the call; otherwise that fails
};

/// Sets off one fault; another one, or none, takes its place.
void SetFault(const SystemFault& fault);

} // namespace ksm
