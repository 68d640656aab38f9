// The notes pad.
#pragma once

#include "controls/fixed_dialog.h"

class QPlainTextEdit;

namespace ksm {

struct GameState;

/// A scratch pad for the evening. The text is the game's, not the window's: every change is kept at
/// once, and the window can be closed and opened again.
class NoteForm : public FixedDialog {
    Q_OBJECT

public:
    /// `state` must live longer than the window.
    NoteForm(GameState& state, QWidget* owner);

    /// Shows the game's notes when they came from somewhere else, such as another game.
    void ShowNotes();

private:
    void Form_Load();
    void Aant_Change();

    GameState& game;
    QPlainTextEdit* aant;
};

} // namespace ksm
