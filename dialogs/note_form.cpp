#include "dialogs/note_form.h"

#include "controls/look.h"
#include "controls/shape_frame.h"
#include "model/game_state.h"

#include <QPlainTextEdit>

namespace ksm {

NoteForm::NoteForm(GameState& state, QWidget* owner)
    : FixedDialog("NoteForm", "Notes", {FromTwips(2415), FromTwips(3735)}, owner), game(state),
      aant(new QPlainTextEdit(this)) {
    aant->setObjectName("Aant");
    aant->setAccessibleName("Notes");
    aant->setGeometry(FromTwips(120), FromTwips(195), FromTwips(2175), FromTwips(3375));
    // The box is alone in its window, so Tab is of more use for columns than for leaving it.
    aant->setTabStopDistance(24);
    new ShapeFrame("Shape1", rect(), 0, this);
    Form_Load();
    connect(aant, &QPlainTextEdit::textChanged, this, &NoteForm::Aant_Change);
}

void NoteForm::ShowNotes() {
    const QString notes = ToQString(game.NotesText);
    if (notes != aant->toPlainText()) {
        aant->setPlainText(notes);
        aant->moveCursor(QTextCursor::End);
    }
}

void NoteForm::Form_Load() {
    PlaceFromOwner({FromTwips(8400), FromTwips(3300)});
    ShowNotes();
    aant->setFocus();
}

void NoteForm::Aant_Change() {
    game.NotesText = aant->toPlainText().toStdString();
}

} // namespace ksm
