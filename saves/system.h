// Files as the operating system knows them: whatever goes wrong with one is told.
#pragma once

#include "model/outcome.h"

#include <filesystem>
#include <string_view>

namespace ksm {

enum class Durability {
    /// Writing to the disk is begun, but not waited for: a process that is killed loses nothing.
    Process,
    /// The call waits for the disk: nor does a computer that stops.
    Disk
};

/// Writes a new file. When that fails, part of it can be there.
Outcome<> WriteNewFile(const std::filesystem::path& path, std::string_view content,
                       Durability durability);
/// Waits until a file's content, or the names in a folder, are on the disk.
Outcome<> Sync(const std::filesystem::path& path);

/// Renames a file; one that has the new name already is replaced.
Outcome<> Rename(const std::filesystem::path& from, const std::filesystem::path& to);

/// Whether a process of this number runs on this computer, whoever started it.
bool IsRunning(unsigned process);

} // namespace ksm
