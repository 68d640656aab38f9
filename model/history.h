// The steps of a game, for taking them back.
#pragma once

#include "model/game_state.h"

#include <deque>
#include <optional>
#include <string>
#include <vector>

namespace ksm {

/// Keeps the game as it was after each step: a list of snapshots, with the present one among them.
/// What one looks at is no part of a game, so steps never touch it; nor do they touch the notes,
/// except for those that a load replaced.
class History {
public:
    explicit History(const Game& start) { Restart(start); }

    /// The game changed, by what a person would call a step or by a part of one: clicks of a
    /// selection belong to the step that began it. What can be taken back no more is forgotten.
    void Record(const Game& game);
    /// Another game was loaded, with its notes: a step of its own.
    void RecordLoad(const GameState& loaded, const std::string& notesBefore);
    /// All that is recorded until `EndStep` is one step. Another one can begin before that.
    void BeginStep();
    void EndStep();
    /// Like `BeginStep`, but goes on with the step that ended last if nothing came between.
    void ResumeStep();
    /// Nothing before this game can be reached again.
    void Restart(const Game& game);

    bool CanUndo() const { return present > 0; }
    bool CanRedo() const { return present + 1 < steps.size(); }
    /// Takes the last step back, or makes it again. A load takes its notes along, unless others
    /// were typed since.
    void Undo(GameState& state);
    void Redo(GameState& state);
    /// What would be taken back or made again, in a few words; empty where nothing would.
    std::string UndoText() const { return TextOf(present); }
    std::string RedoText() const { return TextOf(present + 1); }
    /// What could be taken back, the newest step first, but no more than that many.
    std::vector<std::string> UndoTexts(std::size_t most) const;

private:
    struct Notes {
        std::string Before;
        std::string After;
    };
    struct Step {
        Game After;
        std::optional<Notes> Loaded{}; ///< set when the step is a load
    };

    void Append(const Step& step);
    bool BelongsToLastStep(const Game& game) const;
    std::string TextOf(std::size_t step) const;

    std::deque<Step> steps;  ///< the first is where it all began
    std::size_t present = 0; ///< index of the game as it is
    int openSteps = 0;
    bool stepHasBegun = false; ///< whether the step that is open changed anything yet
    bool canResume = false;    ///< whether the last change belongs to the step that ended last
};

} // namespace ksm
