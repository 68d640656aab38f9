// What was done is kept, and can be taken back.

#include "app/korvane.h"
#include "controls/accessible_names.h"
#include "controls/spin_bar.h"
#include "planets/board_listing.h"
#include "saves/game_file.h"
#include "saves/kept_game.h"

#include <QContextMenuEvent>
#include <QMenu>
#include <QShortcut>

#include <utility>

namespace ksm {

namespace {

/// A step as it stands in a menu.
QString Shown(const QMenu* menu, const std::string& step) {
    constexpr int LongestStep = 300;
    const QFontMetrics metrics(menu->font());
    // A name may hold what a menu takes for the sign of a key.
    const QString line = QString::fromStdString(step).simplified();
    QString text = metrics.elidedText(line, Qt::ElideRight, LongestStep);
    return text.replace('&', "&&");
}

/// "Undo Pellam Tools, Dora", with the key behind it; greyed where there is nothing.
QAction* AddStep(QMenu* menu, const QString& verb, const std::string& step, const char* key) {
    const QString text = (verb + ' ' + Shown(menu, step)).trimmed();
    QAction* item = menu->addAction(text + '\t' + key);
    item->setEnabled(!step.empty());
    return item;
}

} // namespace

void Korvane::ConnectSteps() {
    connect(this, &Korvane::Changed, this, &Korvane::ShowAndKeep);
    for (const SpinBar* bar : findChildren<SpinBar*>()) {
        connect(bar, &SpinBar::HoldBegan, this, [this] { history.BeginStep(); });
        connect(bar, &SpinBar::HoldResumed, this, [this] { history.ResumeStep(); });
        connect(bar, &SpinBar::HoldEnded, this, [this] { history.EndStep(); });
    }
    // Beside the main window, too, unless its window is a text that has steps of its own.
    new QShortcut(QKeySequence("Ctrl+Z"), this, this, &Korvane::Undo, Qt::ApplicationShortcut);
    for (const char* key : {"Ctrl+Shift+Z", "Ctrl+Y"}) {
        new QShortcut(QKeySequence(key), this, this, &Korvane::Redo, Qt::ApplicationShortcut);
    }
}

void Korvane::ShowAndKeep() {
    ShowGame();
    history.Record(state.Game);
    if (kept) {
        kept->Keep(state);
    }
}

void Korvane::MakeOneStepOf(QWidget* window) {
    history.BeginStep();
    connect(window, &QObject::destroyed, this, [this] { history.EndStep(); });
}

Outcome<> Korvane::LoadGame(const QString& name) {
    const Outcome<GameState> loaded = LoadGameFile(name);
    if (!loaded) {
        return Failure{loaded.Reason()};
    }
    const std::string notesBefore = std::exchange(state, *loaded).NotesText;
    history.RecordLoad(state, notesBefore);
    emit Changed();
    return {};
}

void Korvane::Undo() { TakeBack(1); }

void Korvane::TakeBack(int count) {
    for (; count > 0 && history.CanUndo(); --count) {
        Announce(*this, "Undo " + QString::fromStdString(history.UndoText()));
        history.Undo(state);
        Returned();
    }
}

void Korvane::Redo() {
    if (history.CanRedo()) {
        Announce(*this, "Redo " + QString::fromStdString(history.RedoText()));
        history.Redo(state);
        Returned();
    }
}

void Korvane::Returned() {
    RelistBoard(state);
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
    AddTakeBackTo(steps);
    steps->popup(event->globalPos());
}

void Korvane::AddTakeBackTo(QMenu* steps) {
    constexpr std::size_t Most = 10;
    const std::vector<std::string> texts = history.UndoTexts(Most);
    QMenu* list = steps->addMenu("Take Back To");
    list->setEnabled(!texts.empty());
    for (int after = 0; after < static_cast<int>(texts.size()); ++after) {
        QAction* item = list->addAction(Shown(list, texts.at(static_cast<std::size_t>(after))));
        // Where the game stands.
        item->setCheckable(after == 0);
        item->setChecked(after == 0);
        connect(item, &QAction::triggered, this, [this, after] { TakeBack(after); });
    }
}

} // namespace ksm
