// A saved game as text.
#pragma once

#include "model/game_state.h"
#include "model/outcome.h"

#include <QByteArray>
#include <QJsonDocument>

namespace ksm {

inline constexpr auto GameFormat = "Korvane Astrell Manager II saved game";
inline constexpr int GameFormatVersion = 1;

/// The game as JSON in UTF-8: every input, and nothing that follows from other members. The same
/// game gives the same bytes. Fails where they are more than a file may hold.
Outcome<QByteArray> WriteGame(const GameState& state,
                              QJsonDocument::JsonFormat format = QJsonDocument::Indented);

/// Reads what `WriteGame` wrote and trusts nothing: every type, range, length and reference is
/// checked, and whether the parts agree with one another. The figures are computed.
Outcome<GameState> ReadGame(const QByteArray& bytes);

} // namespace ksm
