#include "model/history.h"

#include "model/change.h"

#include <algorithm>
#include <cassert>

namespace ksm {

namespace {

// Whether a click of a selection lies between the two games.
bool SelectionDiffers(const Game& one, const Game& other) {
    return one.TradeMode != other.TradeMode || one.TradeFirst != other.TradeFirst ||
           one.IndepFirst != other.IndepFirst;
}

} // namespace

bool History::BelongsToLastStep(const Game& game) const {
    if (stepHasBegun) {
        return true;
    }
    const Step& last = steps[present];
    return present > 0 && !last.Loaded && last.After.TradeMode != TradeMode::Idle &&
           SelectionDiffers(steps[present - 1].After, last.After) &&
           SelectionDiffers(last.After, game);
}

void History::Append(const Step& step) {
    steps.resize(present + 1);
    steps.push_back(step);
    ++present;
    stepHasBegun = openSteps > 0;
    canResume = false;
}

void History::Record(const Game& game) {
    if (!IsChange(steps[present].After, game)) {
        steps[present].After = game; // prompts and figures follow
        return;
    }
    if (!BelongsToLastStep(game)) {
        Append({game});
        return;
    }
    steps.resize(present + 1);
    steps[present].After = game;
    if (!IsChange(steps[present - 1].After, game)) {
        // The step ends where it began.
        steps.pop_back();
        --present;
        steps[present].After = game;
        stepHasBegun = false;
    }
}

void History::RecordLoad(const GameState& loaded, const std::string& notesBefore) {
    if (IsChange(steps[present].After, loaded.Game) || loaded.NotesText != notesBefore) {
        Append({loaded.Game, Notes{notesBefore, loaded.NotesText}});
        stepHasBegun = false;
    }
}

void History::BeginStep() {
    ++openSteps;
    stepHasBegun = false;
}

void History::ResumeStep() {
    BeginStep();
    stepHasBegun = canResume;
}

void History::EndStep() {
    assert(openSteps > 0);
    --openSteps;
    canResume = stepHasBegun;
    stepHasBegun = stepHasBegun && openSteps > 0;
}

void History::Restart(const Game& game) {
    steps.assign(1, {game});
    present = 0;
    stepHasBegun = canResume = false;
}

void History::Undo(GameState& state) {
    assert(CanUndo());
    const std::optional<Notes>& loaded = steps[present].Loaded;
    if (loaded && state.NotesText == loaded->After) {
        state.NotesText = loaded->Before;
    }
    state.Game = steps[--present].After;
    stepHasBegun = canResume = false;
}

void History::Redo(GameState& state) {
    assert(CanRedo());
    const std::optional<Notes>& loaded = steps[++present].Loaded;
    if (loaded && state.NotesText == loaded->Before) {
        state.NotesText = loaded->After;
    }
    state.Game = steps[present].After;
    stepHasBegun = canResume = false;
}

std::string History::TextOf(std::size_t step) const {
    if (step == 0 || step >= steps.size()) {
        return {};
    }
    return steps[step].Loaded ? "Load Game"
                              : DescribeChange(steps[step - 1].After, steps[step].After);
}

std::vector<std::string> History::UndoTexts(std::size_t most) const {
    std::vector<std::string> texts(std::min(most, present));
    std::size_t step = present;
    std::ranges::generate(texts, [&] { return TextOf(step--); });
    return texts;
}

} // namespace ksm
