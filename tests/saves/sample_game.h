// A game in which every input differs from a new game's.
#pragma once

#include "saves/game_text.h"

#include <QFile>

namespace ksm {

/// The game that was saved by the first version.
inline GameState SampleGame() {
    QFile file(FIRST_SAVED_GAME);
    return file.open(QIODevice::ReadOnly) ? *ReadGame(file.readAll()) : GameState();
}

} // namespace ksm
