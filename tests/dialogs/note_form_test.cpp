#include "dialogs/note_form.h"
#include "model/game_state.h"
#include "tests/window_test.h"

#include <QPlainTextEdit>

namespace ksm {
namespace {

TEST(NoteForm, EveryChangeIsKeptAtOnceAndOutlivesTheWindow) {
    GameState game;
    QWidget owner;
    for (const auto& [before, left] : {std::pair{"", 200}, std::pair{"tax\né€\t😀", 10}}) {
        owner.move(left, 20);
        const QPointer form(new NoteForm(game, &owner));
        form->show();
        auto& box = *form->findChild<QPlainTextEdit*>("Aant");
        EXPECT_EQ(box.toPlainText(), before);
        EXPECT_EQ(form->pos(), QPoint(left + 560, 240)) << "where its owner is now";
        box.clear();
        QTest::keyClicks(&box, "tax");
        EXPECT_EQ(game.NotesText, "tax");
        box.insertPlainText(QString::fromUtf8("\né€\t😀"));
        EXPECT_EQ(game.NotesText, "tax\né€\t😀");
        box.undo();
        EXPECT_EQ(game.NotesText, "tax");
        box.redo();
        form->close();
        EXPECT_TRUE(IsUnloaded(form));
    }
}

} // namespace
} // namespace ksm
