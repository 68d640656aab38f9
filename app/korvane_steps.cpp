// What was done is kept, and can be taken back.

#include "app/korvane.h"
#include "controls/spin_bar.h"
#include "planets/board_listing.h"
#include "saves/kept_game.h"

#include <QContextMenuEvent>
#include <QMenu>
#include <QShortcut>

namespace ksm {

namespace {

/// "Undo Pellam Tools, Dora", with the key behind it; greyed where there is nothing.
QAction* AddStep(QMenu* menu, const QString& verb, const std::string& step, const char* key) {
    const QFontMetrics metrics(menu->font());
    constexpr int LongestStep = 300;
    const QString what =
        metrics.elidedText(QString::fromStdString(step), Qt::ElideRight, LongestStep);
    // A name may hold the sign for an underlined letter.
    const QString text = (verb + ' ' + what).trimmed().replace('&', "&&");
    QAction* item = menu->addAction(text + '\t' + key);
    item->setEnabled(!step.empty());
    return item;
}

} // namespace

void Korvane::ConnectSteps() {
    connect(this, &Korvane::Changed, this, &Korvane::Keep);
    for (const SpinBar* bar : findChildren<SpinBar*>()) {
        connect(bar, &SpinBar::HoldBegan, this, [this] { history.BeginStep(); });
        connect(bar, &SpinBar::HoldEnded, this, [this] { history.EndStep(); });
    }
    connect(new QShortcut(QKeySequence("Ctrl+Z"), this), &QShortcut::activated, this,
            &Korvane::Undo);
    for (const char* key : {"Ctrl+Shift+Z", "Ctrl+Y"}) {
        connect(new QShortcut(QKeySequence(key), this), &QShortcut::activated, this,
                &Korvane::Redo);
    }
}

void Korvane::Keep() {
    history.Record(state.Game);
    if (kept) {
        kept->Keep(state);
    }
}

void Korvane::MakeOneStepOf(QWidget* window) {
    history.BeginStep();
    connect(window, &QObject::destroyed, this, [this] { history.EndStep(); });
}

void Korvane::Undo() {
    if (history.CanUndo()) {
        Return(history.Undo());
    }
}

void Korvane::Redo() {
    if (history.CanRedo()) {
        Return(history.Redo());
    }
}

void Korvane::Return(const Game& game) {
    state.Game = game;
    RelistBoard(state);
    ShowGame();
    emit Changed();
}

void Korvane::contextMenuEvent(QContextMenuEvent* event) {
    auto* steps = new QMenu(this);
    steps->setObjectName("Steps");
    steps->setAttribute(Qt::WA_DeleteOnClose);
    connect(AddStep(steps, "Undo", history.UndoText(), "Ctrl+Z"), &QAction::triggered, this,
            &Korvane::Undo);
    connect(AddStep(steps, "Redo", history.RedoText(), "Ctrl+Y"), &QAction::triggered, this,
            &Korvane::Redo);
    steps->popup(event->globalPos());
}

} // namespace ksm
