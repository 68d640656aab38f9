// The running game, kept on disk while it is played.
#pragma once

#include "model/game_state.h"
#include "model/outcome.h"

namespace ksm {

/// The file of the game that is being played, and of the evening before.
inline constexpr auto KeptGameName = "autosave.ksm";
inline constexpr auto EarlierGameName = "autosave-1.ksm";

/// Writes the game to `autosave.ksm` in the current folder, so that it survives a crash and a
/// careless end. Nothing is waited for: the operating system brings the file to the disk in its own
/// time. A kept game that another process left is renamed first.
class KeptGame {
public:
    /// `start` is not worth keeping: only what differs from it is.
    explicit KeptGame(GameState start) : kept(std::move(start)) {}

    /// Keeps the game, if anything but the view changed since it was last kept.
    void Keep(const GameState& state);

    /// Whether the last change was kept, or why not.
    const Outcome<>& LastOutcome() const { return outcome; }

private:
    Outcome<> Write(const GameState& state);

    GameState kept;
    bool isOurs = false; ///< whether this process wrote the file
    Outcome<> outcome;
};

} // namespace ksm
