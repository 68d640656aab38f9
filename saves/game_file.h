// Saved games on disk.
#pragma once

#include "saves/game_text.h"

namespace ksm {

/// Writes the game to the file `name`, relative to the current folder. A success means that it is
/// on the disk; whatever goes wrong, also a crash halfway, leaves a file that was there before. A
/// different game that is replaced stays as `name` with "~" behind it. The reason of a failure
/// names the file and its folder.
Outcome<> SaveGameFile(const QString& name, const GameState& state);

/// Reads the game in the file `name`, relative to the current folder.
Outcome<GameState> LoadGameFile(const QString& name);

} // namespace ksm
