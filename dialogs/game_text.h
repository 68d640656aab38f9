// A saved game as text.
#pragma once

#include "model/game_state.h"

#include <QByteArray>
#include <QString>

#include <array>
#include <optional>
#include <string_view>

namespace ksm {

/// A larger file is not written and not read.
inline constexpr qsizetype LargestGameFile = qsizetype{1024} * 1024;

inline constexpr auto GameFormat = "Korvane Astrell Manager II saved game";
inline constexpr int GameFormatVersion = 1;

// How the saved game spells enumerations, in their order. A race is spelled as its caption.
inline constexpr std::array<std::string_view, 4> SpecialtyWords{"none", "blue", "green", "red"};
inline constexpr std::array<std::string_view, 7> TradeModeWords{
    "idle",           "add first",          "add partner",        "remove first",
    "remove partner", "independence first", "independence second"};

/// The game as JSON in UTF-8: every input, no derived figure. The same game gives the same bytes.
QByteArray WriteGame(const GameState& state);

struct ReadGameResult {
    /// Set when nothing at all is wrong. Its derived figures are those of a new game: they are to
    /// be recomputed.
    std::optional<GameState> Game;
    QString Problem; ///< otherwise what is wrong first, as a sentence
};

/// Reads what `WriteGame` wrote and trusts nothing: every type, range, length and reference is
/// checked, and whether the parts agree with one another.
ReadGameResult ReadGame(const QByteArray& bytes);

} // namespace ksm
