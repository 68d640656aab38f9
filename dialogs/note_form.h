// The notes pad.
#pragma once

#include "controls/fixed_dialog.h"

namespace ksm {

struct GameState;
class NotesBox;

/// A scratch pad for the evening. Every change goes straight into the game, so that closing the
/// window loses nothing.
class NoteForm : public FixedDialog {
    Q_OBJECT

public:
    /// `game` must live longer than the window.
    NoteForm(GameState& game, QWidget* owner);

    /// Shows the notes of the game, if they are not shown already.
    void ShowNotes();

signals:
    /// The user changed the notes.
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
