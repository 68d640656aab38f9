// The notes pad.
#pragma once

#include "controls/fixed_dialog.h"

namespace ksm {

struct GameState;
class NotesBox;

/// A scratch pad for the evening. The text is the game's, not the window's: every change is kept at
/// once, and the window can be closed and opened again.
class NoteForm : public FixedDialog {
    Q_OBJECT

public:
    /// `game` must live longer than the window.
    NoteForm(GameState& game, QWidget* owner);

    /// Shows the notes, when they came from somewhere else, such as another game.
    void ShowNotes();

signals:
    /// What the user did is done.
    void Changed();

private:
    void Form_Load();
    void Aant_Change();
    /// The text as it was typed.
    std::string Text() const;

    GameState& state;
    NotesBox* Aant;
};

} // namespace ksm
