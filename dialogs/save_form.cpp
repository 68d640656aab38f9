#include "dialogs/save_form.h"

#include "saves/game_file.h"

namespace ksm {

namespace {

constexpr GameFileDesign Design{
    .FormName = "SaveForm",
    .Title = "Save Game",
    .ButtonName = "Sav",
    .ButtonCaption = "Save",
    .FailureTitle = "Error Saving File",
    .FailureText = "An error occured saving the file.",
    .List = {10, 8, 129, 58},
    .Label = {9, 87, 48, 17},
    .Box = {59, 85, 78, 19},
    .Button = {16, 112, 50, 25},
};

} // namespace

SaveForm::SaveForm(const GameState& game, QWidget* owner)
    : GameFileForm(Design, owner), state(game) {}

Outcome<> SaveForm::UseFile(const QString& name) {
    return SaveGameFile(name, state);
}

} // namespace ksm
