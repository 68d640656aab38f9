// The folder in which the program lies.
#pragma once

#include <filesystem>

namespace ksm {

/// With all links resolved; its name can hold any bytes. To be called with an application object.
std::filesystem::path ProgramFolder();

} // namespace ksm
