// Files that are read whole.
#pragma once

#include "model/outcome.h"

#include <cstdint>
#include <filesystem>

namespace ksm {

/// A larger planet list or saved game is neither written nor read.
inline constexpr std::uintmax_t LargestFile = std::uintmax_t{1024} * 1024;

/// Whether a file can be read or replaced there: a folder, a pipe or a device is in the way.
Outcome<> CheckFile(const std::filesystem::path& path);
/// The bytes of the file.
Outcome<std::string> ReadFile(const std::filesystem::path& path);

} // namespace ksm
