#include "planets/planet_board.h"

#include "controls/caption_label.h"
#include "controls/element_name.h"
#include "controls/focus_group.h"
#include "controls/framed_bar.h"
#include "controls/look.h"
#include "controls/qt_values.h"
#include "controls/shape_frame.h"
#include "model/player_labels.h"
#include "planets/drag_marks.h"
#include "planets/owner_place.h"
#include "planets/planet_transfer.h"

#include <QApplication>

#include <algorithm>
#include <utility>

namespace ksm {

namespace {

constexpr QRect Panel{163, 0, 172, 180};
constexpr QSize OwnerSize{70, 14};

} // namespace

PlanetBoard::PlanetBoard(GameState& game, QWidget* parent) : QWidget(parent), state(game) {
    setObjectName("InvasionPic");
    setAccessibleName("Planet board");
    setGeometry(Panel);
    MakeOwners();
    MakeRows();
    new LineControl("InvasionLine", {70, 1, 1, 178}, this);
    new LineControl("NeutralLine", {0, 30, 70, 1}, this);
    new ShapeFrame("InvasionShape", rect(), 4, this);
    PlanetScroller = new FramedBar("PlanetScroller", {158, 16, 10, 148}, this);
    PlanetScroller->setAccessibleName("Planets, scroll position");
    PlanetScroller->SetRange(0, 0, 0);
    PlanetScroller->setPageStep(BoardRowCount);
    connect(PlanetScroller, &QScrollBar::valueChanged, this, &PlanetBoard::PlanetScroller_Change);
}

void PlanetBoard::MakeOwners() {
    const auto make = [this](int owner, int top, const QFont& font) {
        auto* label = new CaptionLabel(ElementName("InvasionPlayer", owner),
                                       {QPoint(0, top), OwnerSize}, this);
        label->SetAlignment(Qt::AlignCenter);
        label->setFont(font);
        label->MakeClickable();
        connect(label, &CaptionLabel::Clicked, this,
                [this, owner] { InvasionPlayer_Click(owner); });
        InvasionPlayer[owner] = label;
    };
    make(AllPlanets, 1, ArialFont(QFont::Bold));
    InvasionPlayer[AllPlanets]->SetCaption("All planets");
    make(NeutralOwner, 16, BoldFont());
    InvasionPlayer[NeutralOwner]->SetCaption("Neutral");
    for (int player = 1; player <= MaxPlayers; ++player) {
        make(player, 0, PlainFont());
        InvasionPlayer[player]->SetHeading(QString("Planets of Player %1").arg(player));
    }
    QList<QWidget*> owners{InvasionPlayer[AllPlanets]};
    for (int owner = NeutralOwner; owner <= MaxPlayers; ++owner) {
        owners << InvasionPlayer[owner];
    }
    new FocusGroup(owners, FocusGroup::Keys::Arrows, this);
}

void PlanetBoard::MakeRows() {
    rows.reserve(BoardRowCount);
    QList<QWidget*> names;
    for (int row = 0; row < BoardRowCount; ++row) {
        const PlanetLabel* name = &rows.emplace_back(row, state.Game, this).Name();
        connect(name, &PlanetLabel::Pressed, this, [this, row] { Take(row); });
        connect(name, &PlanetLabel::DraggedTo, this, &PlanetBoard::DragTo);
        connect(name, &PlanetLabel::DroppedAt, this, &PlanetBoard::DropAt);
        connect(name, &PlanetLabel::DragCancelled, this, &PlanetBoard::CancelDrag);
        connect(name, &PlanetLabel::Activated, this, [this, row] { PickUpOrSetDown(row); });
        connect(name, &PlanetLabel::Stepped, this,
                [this](int step) { carried ? Carry(step) : planets->Move(step); });
        connect(name, &PlanetLabel::Abandoned, this, &PlanetBoard::PutBack);
        names << &rows.back().Name();
    }
    // A planet that is carried needs the arrow keys itself.
    planets = new FocusGroup(names, FocusGroup::Keys::None, this);
}

void PlanetBoard::ShowGame() {
    if (carried) {
        Row(carried->Row).SetNote({});
        carried.reset();
    }
    ShowList();
    ShowMarks();
}

void PlanetBoard::ShowList() {
    // The bar ends where the list does, and is moved only to where the state says.
    const int maximum = BoardMaximum(state);
    PlanetScroller->setMaximum(std::max(PlanetScroller->maximum(), maximum));
    PlanetScroller->setValue(state.View.BoardPosition);
    PlanetScroller->setMaximum(maximum);
    const BoardRows listed = ListBoard(state);
    for (std::size_t row = 0; row < rows.size(); ++row) {
        rows[row].Show(listed[row]);
    }
}

void PlanetBoard::ShowMarks() {
    const QColor highlight = ToQColor(colour::Yellow);
    const QColor dragMark = ToQColor(colour::Red);
    for (const auto& [owner, label] : InvasionPlayer) {
        label->SetBackColour(owner == state.View.MarkedOwner   ? dragMark
                             : owner == state.View.BoardPlayer ? highlight
                                                               : ButtonFace());
    }
    for (std::size_t row = 0; row < rows.size(); ++row) {
        rows[row].Name().SetBackColour(state.View.MarkedRows[row] ? dragMark : ButtonFace());
    }
}

void PlanetBoard::PlaceOwner(int player) {
    InvasionPlayer[player]->move(0, TopOfOwner(player, state.Game.NumPlayers));
}

void PlanetBoard::SetOwnerVisible(int player, bool visible) {
    InvasionPlayer[player]->setVisible(visible);
}

void PlanetBoard::ShowPlayer(int player) {
    InvasionPlayer[player]->SetCaption(QString::fromStdString(OwnerCaption(state.Game, player)));
}

void PlanetBoard::InvasionPlayer_Click(int owner) {
    EndCarrying();
    List(owner);
    emit Changed();
}

void PlanetBoard::List(int owner) {
    ListOwner(state, owner);
    ShowList();
    ShowMarks();
}

// Also runs when the bar is moved to show the game.
void PlanetBoard::PlanetScroller_Change(int position) {
    if (position != state.View.BoardPosition) {
        EndCarrying();
        state.View.BoardPosition = position;
        ShowList();
        ShowMarks();
        emit Changed();
    }
}

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

void PlanetBoard::Take(int row) {
    PutBack();
    dragged = {.Row = row, .Tag = Row(row).Tag()};
}

void PlanetBoard::DragTo(QPoint global) {
    const int owner = OwnerOf(SeenAt(global));
    if (owner != NoOwner && dragged) {
        InvasionPlayer_DragOver(owner, *dragged);
    }
}

void PlanetBoard::DropAt(QPoint global) {
    const std::optional<Journey> ended = std::exchange(dragged, std::nullopt);
    const QWidget* control = SeenAt(global);
    const int owner = OwnerOf(control);
    if (ended && owner != NoOwner) {
        InvasionPlayer_DragDrop(owner, *ended);
    } else if (IsBare(control)) {
        InvasionPic_DragDrop();
    }
}

void PlanetBoard::CancelDrag() {
    dragged.reset();
    InvasionPic_DragDrop();
}

void PlanetBoard::InvasionPlayer_DragOver(int owner, Journey& journey) {
    journey.Over = owner;
    const GameView before = state.View;
    MarkDragOver(state, owner, journey.Row);
    if (state.View != before) {
        ShowMarks();
        emit Changed();
    }
}

void PlanetBoard::InvasionPlayer_DragDrop(int owner, const Journey& journey) {
    if (!AcceptsDrop(state, owner, journey.Tag)) {
        return;
    }
    UnmarkAfterDrop(state, owner);
    if (TransferPlanet(state, journey.Tag, owner)) {
        emit InputChanged();
        List(state.View.BoardPlayer);
    } else {
        ShowMarks();
    }
    emit Changed();
}

void PlanetBoard::InvasionPic_DragDrop() {
    UnmarkAll(state);
    ShowMarks();
    emit Changed();
}

void PlanetBoard::PickUpOrSetDown(int row) {
    if (carried) {
        const Journey ended = *carried;
        Row(ended.Row).SetNote({});
        carried.reset();
        InvasionPlayer_DragDrop(ended.Over, ended);
    } else if (!dragged && Row(row).Tag() < state.Game.NumPlanets) {
        Row(row).Name().setFocus();
        carried = {.Row = row, .Tag = Row(row).Tag()};
        Carry(+1);
    }
}

void PlanetBoard::Carry(int step) {
    // Over the owners in the game, the pool first, round and round; never to the listed owner.
    const int owners = state.Game.NumPlayers + 1;
    int next = carried->Over;
    do {
        next = (next + step + owners) % owners; // first from -1 to the pool
    } while (next == state.View.BoardPlayer);
    Row(carried->Row).SetNote(", over " + InvasionPlayer[next]->Caption());
    InvasionPlayer_DragOver(next, *carried);
}

void PlanetBoard::PutBack() {
    if (carried) {
        EndCarrying();
        ShowMarks();
        emit Changed();
    }
}

// The one who ends it shows what is left.
void PlanetBoard::EndCarrying() {
    if (carried) {
        Row(carried->Row).SetNote({});
        carried.reset();
        UnmarkAll(state);
    }
}

} // namespace ksm
