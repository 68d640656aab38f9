// Files that are read whole.
#pragma once

#include "model/outcome.h"

#include <cstdint>
#include <filesystem>

namespace ksm {

/// A larger planet list or saved game is neither written nor read.
inline constexpr std::uintmax_t LargestFile = std::uintmax_t{1024} * 1024;

/// The bytes of the file. A folder, a pipe or a device is none: that might be read for ever.
Outcome<std::string> ReadFile(const std::filesystem::path& path);

} // namespace ksm
