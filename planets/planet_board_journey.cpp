// A planet goes from the board to its new owner, by mouse or by keyboard.

#include "controls/caption_label.h"
#include "controls/shape_frame.h"
#include "economy/recompute.h"
#include "model/player_labels.h"
#include "planets/drag_marks.h"
#include "planets/planet_board.h"
#include "planets/planet_transfer.h"

#include <QApplication>
#include <QKeyEvent>

#include <algorithm>

namespace ksm {

const QWidget* PlanetBoard::SeenAt(QPoint global) const {
    // Another window can lie over the board, which only the window system knows.
    const QWidget* control = QApplication::widgetAt(global);
    return control == this || isAncestorOf(control) ? control : nullptr;
}

int PlanetBoard::OwnerOf(const QWidget* control) const {
    for (const auto& [owner, label] : InvasionPlayer) {
        if (label == control) {
            return owner;
        }
    }
    return NoOwner;
}

bool PlanetBoard::IsBare(const QWidget* control) const {
    return control == this || std::ranges::any_of(rows, [&](const BoardRow& row) {
               return row.Tag() == NoPlanet && row.Holds(control);
           });
}

void PlanetBoard::BeginDragging(int row, QPoint grip) {
    PutBack();
    journey = {.By = Journey::Way::Mouse, .Row = row, .Tag = Row(row).Tag(), .Grip = grip};
    qApp->installEventFilter(this);
    MoveOutline(Row(row).Name().mapToGlobal(grip));
}

void PlanetBoard::MoveOutline(QPoint global) {
    if (!outline) {
        outline = new ShapeFrame("DragOutline", QRect(), 0, window());
    }
    const QPoint corner = window()->mapFromGlobal(global - journey.Grip);
    outline->setGeometry({corner, Row(journey.Row).Name().size()});
    outline->show();
    outline->raise();
}

void PlanetBoard::DragTo(QPoint global) {
    if (IsDragging()) {
        MoveOutline(global);
        const int owner = OwnerOf(SeenAt(global));
        if (owner != NoOwner) {
            InvasionPlayer_DragOver(owner);
        }
    }
}

void PlanetBoard::DropAt(QPoint global) {
    if (!IsDragging()) {
        return;
    }
    const int tag = journey.Tag;
    StopDragging();
    const QWidget* control = SeenAt(global);
    const int owner = OwnerOf(control);
    if (owner != NoOwner) {
        InvasionPlayer_DragDrop(owner, tag);
    } else if (IsBare(control)) {
        InvasionPic_DragDrop();
    }
}

bool PlanetBoard::eventFilter(QObject* watched, QEvent* event) {
    if (event->type() == QEvent::Wheel) {
        return true; // what is under the pointer stays there
    }
    if (event->type() == QEvent::KeyPress &&
        static_cast<QKeyEvent*>(event)->key() == Qt::Key_Escape) {
        CancelDrag();
        return true;
    }
    // A window or a menu that opens gets the release of the mouse button, or nobody does.
    if (const auto* control = qobject_cast<QWidget*>(watched)) {
        const bool opened = event->type() == QEvent::Show && control->isWindow() &&
                            control->windowType() != Qt::ToolTip;
        const bool released =
            event->type() == QEvent::MouseButtonRelease && control != &Row(journey.Row).Name();
        if (opened || released || event->type() == QEvent::WindowBlocked) {
            CancelDrag();
        }
    }
    return false;
}

void PlanetBoard::StopDragging() {
    qApp->removeEventFilter(this);
    outline->hide();
    journey = {};
}

void PlanetBoard::CancelDrag() {
    StopDragging();
    InvasionPic_DragDrop();
}

void PlanetBoard::InvasionPlayer_DragOver(int owner) {
    journey.Over = owner;
    const GameView before = state.View;
    MarkDragOver(state.View, owner, journey.Row);
    if (state.View != before) {
        emit Changed();
    }
}

void PlanetBoard::InvasionPlayer_DragDrop(int owner, int tag) {
    if (!AcceptsDrop(state, owner, tag)) {
        return;
    }
    UnmarkAfterDrop(state.View, owner);
    if (TransferPlanet(state, tag, owner)) {
        Recompute(state.Game);
        ListOwner(state, state.View.BoardPlayer);
    }
    emit Changed();
}

void PlanetBoard::InvasionPic_DragDrop() {
    UnmarkAll(state.View);
    emit Changed();
}

void PlanetBoard::PickUpOrSetDown(int row) {
    if (IsCarrying()) {
        const Journey ended = journey;
        journey = {};
        InvasionPlayer_DragDrop(ended.Over, ended.Tag);
    } else if (!IsDragging() && Row(row).Tag() < state.Game.NumPlanets) {
        Row(row).Name().setFocus();
        journey = {.By = Journey::Way::Keyboard, .Row = row, .Tag = Row(row).Tag()};
        Carry(+1);
    }
}

void PlanetBoard::Carry(int step) {
    // Over the owners in the game, the pool first, round and round; never to the listed owner.
    const int owners = state.Game.NumPlayers + 1;
    const auto behind = [&](int owner) { return (owner + step + owners) % owners; };
    const int next = behind(journey.Over); // first from -1 to the pool
    InvasionPlayer_DragOver(next == state.View.BoardPlayer ? behind(next) : next);
}

void PlanetBoard::PutBack() {
    if (IsCarrying()) {
        StopCarrying();
        emit Changed();
    }
}

void PlanetBoard::StopCarrying() {
    if (IsCarrying()) {
        journey = {};
        UnmarkAll(state.View);
    }
}

void PlanetBoard::ShowJourney() {
    // Another game came, which has no mark of it.
    if (IsCarrying() && !state.View.MarkedRows[static_cast<std::size_t>(journey.Row)]) {
        journey = {};
    }
    for (int row = 0; row < BoardRowCount; ++row) {
        const bool isCarried = IsCarrying() && journey.Row == row;
        Row(row).SetNote(isCarried ? ", over " +
                                         QString::fromStdString(OwnerName(state.Game, journey.Over))
                                   : QString());
    }
}

} // namespace ksm
