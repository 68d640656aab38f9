// Saved games on disk.
#pragma once

#include "saves/game_text.h"

namespace ksm {

/// Writes the game to `path`. Whatever goes wrong, also a crash halfway, leaves a file that was
/// there before as it was. Returns why it failed, or an empty text.
QString SaveGameFile(const QString& path, const GameState& state);

/// Reads the game at `path`.
ReadGameResult LoadGameFile(const QString& path);

} // namespace ksm
