// The dialog that loads a saved game.
#pragma once

#include "dialogs/game_file_form.h"
#include "model/game_state.h"

namespace ksm {

/// Reads and checks a saved game; whoever listens to the signal puts it in force.
class LoadForm : public GameFileForm {
    Q_OBJECT

public:
    explicit LoadForm(QWidget* owner);

signals:
    /// The game that was read. Emitted at most once, before the dialog closes.
    void GameLoaded(const ksm::GameState& game);

protected:
    Outcome<> UseFile(const QString& name) override;
};

} // namespace ksm
