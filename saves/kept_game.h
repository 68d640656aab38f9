// The running game, kept on disk while it is played.
#pragma once

#include "model/game_state.h"
#include "model/outcome.h"

namespace ksm {

/// Writes the game to `autosave.ksm` in the current folder, so that it survives a crash and a
/// careless end. Nothing is waited for: the operating system brings the file to the disk in its own
/// time. Other games that were kept there get older names.
class KeptGame {
public:
    /// `start` is not worth keeping: only what differs from it is.
    explicit KeptGame(GameState start) : last(std::move(start)) {}

    /// Keeps the game, if anything but the view changed since it was last kept.
    void Keep(const GameState& state);

    /// Whether the last change was kept, or why not.
    const Outcome<>& LastOutcome() const { return outcome; }

private:
    Outcome<> Write(const GameState& state);
    /// Fails when the file does not hold what this program wrote.
    Outcome<> CheckIsOurs() const;

    GameState last;
    Outcome<> outcome;
    std::string written;        ///< empty until this program wrote the file
    std::int64_t startTime = 0; ///< of the game that was written
};

} // namespace ksm
