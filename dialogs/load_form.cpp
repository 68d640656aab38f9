#include "dialogs/load_form.h"

#include "saves/game_file.h"

namespace ksm {

namespace {

constexpr GameFileDesign Design{
    .FormName = "LoadForm",
    .Title = "Load Game",
    .ButtonName = "Loa",
    .ButtonCaption = "Load",
    .FailureTitle = "Error Loading File",
    .FailureText = "An error occured loading the file.",
    .List = {10, 9, 129, 58},
    .Label = {10, 88, 48, 17},
    .Box = {59, 85, 79, 19},
    .Button = {16, 112, 51, 25},
};

} // namespace

LoadForm::LoadForm(QWidget* owner) : GameFileForm(Design, owner) {}

Outcome<> LoadForm::UseFile(const QString& name) {
    const Outcome<GameState> game = LoadGameFile(name);
    if (!game) {
        return Failure{game.Reason()};
    }
    emit GameLoaded(*game);
    return {};
}

} // namespace ksm
