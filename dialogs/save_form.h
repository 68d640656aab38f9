// The dialog that saves the game.
#pragma once

#include "dialogs/game_file_form.h"
#include "model/game_state.h"

namespace ksm {

/// Saves the game as it is when the user confirms.
class SaveForm : public GameFileForm {
    Q_OBJECT

public:
    /// `game` must outlive the dialog.
    SaveForm(const GameState& game, QWidget* owner);

protected:
    Outcome<> UseFile(const QString& name) override;

private:
    const GameState& state;
};

} // namespace ksm
