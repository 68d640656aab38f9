// A saved game as text.
#pragma once

#include "model/game_state.h"

#include <QByteArray>
#include <QJsonDocument>
#include <QString>

#include <optional>

namespace ksm {

/// A larger file is not written and not read.
inline constexpr qsizetype LargestGameFile = qsizetype{1024} * 1024;

inline constexpr auto GameFormat = "Korvane Astrell Manager II saved game";
inline constexpr int GameFormatVersion = 1;

/// The game as JSON in UTF-8: every input, and nothing that follows from other members. The same
/// game gives the same bytes.
QByteArray WriteGame(const GameState& state,
                     QJsonDocument::JsonFormat format = QJsonDocument::Indented);

struct ReadGameResult {
    /// Set when nothing at all is wrong: the whole game, its figures computed.
    std::optional<GameState> Game;
    QString Problem; ///< otherwise what is wrong first, as a sentence
};

/// Reads what `WriteGame` wrote and trusts nothing: every type, range, length and reference is
/// checked, and whether the parts agree with one another.
ReadGameResult ReadGame(const QByteArray& bytes);

} // namespace ksm
