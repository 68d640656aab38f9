// The steps of a game, for taking them back.
#pragma once

#include "model/game_state.h"

#include <deque>
#include <string>

namespace ksm {

/// Keeps the game as it was after each step: a list of snapshots, with the present one among them.
/// What one looks at and the notes are no part of a game, so steps never touch them.
class History {
public:
    explicit History(const Game& start) : states{start} {}

    /// The game changed, by what a person would call a step or by a part of one: clicks of a
    /// selection belong to the step that began it. What can be taken back no more is forgotten.
    void Record(const Game& game);
    /// All that is recorded until `EndStep` is one step. Another one can begin before that.
    void BeginStep();
    void EndStep();
    /// Nothing before this game can be reached again.
    void Restart(const Game& game);

    bool CanUndo() const { return present > 0; }
    bool CanRedo() const { return present + 1 < states.size(); }
    /// Takes the last step back, or makes it again, and returns the game as it is then.
    const Game& Undo();
    const Game& Redo();
    /// What would be taken back or made again, in a few words.
    std::string UndoText() const;
    std::string RedoText() const;

private:
    bool BelongsToLastStep(const Game& game) const;

    std::deque<Game> states; ///< never empty
    std::size_t present = 0; ///< index of the game as it is
    int openSteps = 0;
    bool stepHasBegun = false; ///< whether the step that is open changed anything yet
};

} // namespace ksm
