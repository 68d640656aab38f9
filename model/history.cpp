#include "model/history.h"

#include "model/change.h"

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
    return present > 0 && states[present].TradeMode != TradeMode::Idle &&
           SelectionDiffers(states[present - 1], states[present]) &&
           SelectionDiffers(states[present], game);
}

void History::Record(const Game& game) {
    if (!IsChange(states[present], game)) {
        states[present] = game; // prompts and figures follow
        return;
    }
    states.resize(present + 1, game);
    if (!BelongsToLastStep(game)) {
        states.push_back(game);
        ++present;
        stepHasBegun = openSteps > 0;
        return;
    }
    states[present] = game;
    if (!IsChange(states[present - 1], game)) {
        // The step ends where it began.
        states.pop_back();
        --present;
        states[present] = game;
        stepHasBegun = false;
    }
}

void History::BeginStep() {
    ++openSteps;
    stepHasBegun = false;
}

void History::EndStep() {
    assert(openSteps > 0);
    --openSteps;
    stepHasBegun = stepHasBegun && openSteps > 0;
}

void History::Restart(const Game& game) {
    states.assign(1, game);
    present = 0;
    stepHasBegun = false;
}

const Game& History::Undo() {
    assert(CanUndo());
    stepHasBegun = false;
    return states[--present];
}

const Game& History::Redo() {
    assert(CanRedo());
    stepHasBegun = false;
    return states[++present];
}

std::string History::UndoText() const {
    return CanUndo() ? DescribeChange(states[present - 1], states[present]) : std::string();
}

std::string History::RedoText() const {
    return CanRedo() ? DescribeChange(states[present], states[present + 1]) : std::string();
}

} // namespace ksm
