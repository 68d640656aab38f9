#include "dialogs/note_form.h"

#include "controls/element_name.h"
#include "controls/shape_frame.h"
#include "controls/twips.h"
#include "model/game_state.h"

#include <QMimeData>
#include <QPlainTextEdit>

#include <algorithm>

namespace ksm {

namespace {

// The time to wrap a word grows with the square of its length: minutes for a file pasted by
// mistake.
constexpr qsizetype LongestWrappedWord = 1000;

bool HasEndlessWord(const QString& text) {
    qsizetype length = 0;
    return std::ranges::any_of(text, [&](QChar letter) {
        length = letter.isSpace() ? 0 : length + 1;
        return length > LongestWrappedWord;
    });
}

} // namespace

/// A text box that stays quick whatever it is filled with.
class NotesBox : public QPlainTextEdit {
public:
    using QPlainTextEdit::QPlainTextEdit;

    void SetText(const QString& text) {
        PrepareFor(text);
        setPlainText(text);
    }

protected:
    void insertFromMimeData(const QMimeData* source) override {
        if (!source->hasText()) {
            return; // Qt 6.4 crashes where there is no format at all, as in an empty clipboard
        }
        PrepareFor(source->text());
        QPlainTextEdit::insertFromMimeData(source);
    }

private:
    void PrepareFor(const QString& text) {
        if (HasEndlessWord(text)) {
            setWordWrapMode(QTextOption::WrapAnywhere);
        }
    }
};

NoteForm::NoteForm(GameState& game, QWidget* owner)
    : FixedDialog("NoteForm", "Notes", {FromTwips(2415), FromTwips(3735)}, owner), state(game),
      Aant(new NotesBox(this)) {
    NameAndPlace(*Aant, "Aant", TwipsRect(120, 195, 2175, 3375), "Notes");
    // Nothing else in the window takes the focus, so Tab makes columns.
    Aant->setTabStopDistance(24);
    new ShapeFrame("Shape1", rect(), 0, this);
    Form_Load();
    connect(Aant, &NotesBox::textChanged, this, &NoteForm::Aant_Change);
}

void NoteForm::Form_Load() {
    PlaceFromOwner({FromTwips(8400), FromTwips(3300)});
    ShowNotes();
    Aant->setFocus();
}

void NoteForm::ShowNotes() {
    if (state.NotesText != Text()) {
        Aant->SetText(QString::fromStdString(state.NotesText));
        Aant->moveCursor(QTextCursor::End);
    }
}

// Also runs when ShowNotes fills the box.
void NoteForm::Aant_Change() {
    std::string text = Text();
    if (text != state.NotesText) {
        state.NotesText = std::move(text);
        emit Changed();
    }
}

std::string NoteForm::Text() const {
    // toPlainText() would turn no-break spaces into blanks.
    QString text = Aant->document()->toRawText();
    text.replace(QChar::ParagraphSeparator, '\n');
    text.replace(QChar::LineSeparator, '\n');
    return text.toStdString();
}

} // namespace ksm
