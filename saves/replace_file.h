// Files that are replaced whole or not at all.
#pragma once

#include "saves/system.h"

namespace ksm {

/// Gives the file at `path`, which has a folder in it, this content: written beside it and renamed
/// over it. Whatever goes wrong before that leaves the file as it was. Where `copy` names a file, a
/// file that was at `path` stays there; what that name meant before is lost.
Outcome<> ReplaceFile(const std::filesystem::path& path, std::string_view content,
                      Durability durability, const std::filesystem::path& copy = {});

/// Removes from the folder what processes of this computer left behind that were killed in the
/// middle of replacing a file.
void RemoveLeftovers(const std::filesystem::path& folder);

} // namespace ksm
