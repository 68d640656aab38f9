#include "planets/planet_board.h"

#include "app/layout.h"
#include "controls/caption_label.h"
#include "controls/framed_bar.h"
#include "controls/look.h"
#include "controls/shape_frame.h"
#include "planets/planet_transfer.h"

#include <utility>

namespace ksm {

namespace {

constexpr QRect Panel{163, 0, 172, 180};
constexpr QSize OwnerSize{70, 14};
constexpr QColor Highlight{0xFF, 0xFF, 0x00};
constexpr QColor DragMark{0xFF, 0x00, 0x00};

} // namespace

PlanetBoard::PlanetBoard(GameState& game, QWidget* parent) : QWidget(parent), state(game) {
    setObjectName("InvasionPic");
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
    const auto make = [this](int owner, int top, const QFont& font, const QString& caption) {
        auto* label = new CaptionLabel(ElementName("InvasionPlayer", owner),
                                       {QPoint(0, top), OwnerSize}, this);
        label->setAlignment(Qt::AlignHCenter | Qt::AlignVCenter);
        label->setFont(font);
        label->SetCaption(caption);
        label->SetBackColour(ButtonFace());
        label->MakeClickable();
        connect(label, &CaptionLabel::Clicked, this,
                [this, owner] { InvasionPlayer_Click(owner); });
        InvasionPlayer[owner] = label;
    };
    make(AllPlanets, 1, BoldFont(), "All planets");
    make(NeutralOwner, 16, BoldFont(), "Neutral");
    const PlayerLayout design = LayoutForPlayerCount(MaxPlayers);
    for (int player = 1; player <= MaxPlayers; ++player) {
        make(player, design.OwnerTops[player], PlainFont(), {});
        InvasionPlayer[player]->SetHeading(QString("Planets of Player %1").arg(player));
        ShowPlayer(player);
    }
    InvasionPlayer[AllPlanets]->SetBackColour(Highlight);
}

void PlanetBoard::MakeRows() {
    labels.reserve(BoardRowCount);
    for (int row = 0; row < BoardRowCount; ++row) {
        const PlanetLabel* name = &labels.emplace_back(row, this).Name();
        connect(name, &PlanetLabel::DraggedTo, this, [this, row](QPoint at) { DragTo(row, at); });
        connect(name, &PlanetLabel::DroppedAt, this, [this, row](QPoint at) { DropAt(row, at); });
        connect(name, &PlanetLabel::PickedUp, this, [this, row] { Carry(row, +1); });
        connect(name, &PlanetLabel::CarriedBy, this, [this, row](int step) { Carry(row, step); });
        connect(name, &PlanetLabel::SetDown, this, [this, row] { SetDown(row); });
        connect(name, &PlanetLabel::PutBack, this, [this, row] { PutBack(row); });
    }
}

void PlanetBoard::ShowFirstPage() {
    ShowScrollRange();
    ListBoard(state, rows);
    ShowRows();
}

void PlanetBoard::ShowGame() {
    const int position = state.BoardPosition;
    ClearPlanetMarks();
    InvasionPlayer_Click(state.BoardPlayer);
    PlanetScroller->setValue(position);
}

void PlanetBoard::PlaceOwner(int player, int top) {
    InvasionPlayer[player]->move(0, top);
}

void PlanetBoard::ShowOwner(int player, bool visible) {
    InvasionPlayer[player]->setVisible(visible);
}

void PlanetBoard::ShowPlayer(int player) {
    InvasionPlayer[player]->SetCaption(ToQString(OwnerCaption(state, player)));
}

void PlanetBoard::ShowScrollRange() {
    // A lower maximum moves the position down to it first, and PlanetScroller_Change lists from
    // there.
    PlanetScroller->setMaximum(BoardMaximum(state));
}

void PlanetBoard::ShowRows() {
    for (std::size_t row = 0; row < rows.size(); ++row) {
        const int tag = rows[row];
        if (tag == NoPlanet) {
            labels[row].ShowEmpty();
        } else {
            labels[row].Show(tag, state.Planet(tag));
        }
    }
}

void PlanetBoard::InvasionPlayer_Click(int owner) {
    state.BoardPlayer = owner;
    for (const auto& [index, label] : InvasionPlayer) {
        label->SetBackColour(index == owner ? Highlight : ButtonFace());
    }
    if (owner != AllPlanets) {
        rows = EmptyBoardRows();
    }
    ShowScrollRange();
    ListBoard(state, rows);
    ShowRows();
}

void PlanetBoard::PlanetScroller_Change(int position) {
    state.BoardPosition = position;
    if (state.BoardPlayer != AllPlanets) {
        ShowScrollRange();
    }
    ListBoard(state, rows);
    ShowRows();
}

int PlanetBoard::OwnerAt(QPoint global) const {
    const QWidget* under = childAt(mapFromGlobal(global));
    for (const auto& [index, label] : InvasionPlayer) {
        if (label == under) {
            return index;
        }
    }
    return -1;
}

void PlanetBoard::DragTo(int row, QPoint global) {
    const int owner = OwnerAt(global);
    if (owner >= 0) {
        InvasionPlayer_DragOver(owner, row);
    }
}

void PlanetBoard::DropAt(int row, QPoint global) {
    const QPoint place = mapFromGlobal(global);
    const int owner = OwnerAt(global);
    if (owner >= 0) {
        InvasionPlayer_DragDrop(owner, row);
    } else if (rect().contains(place) && !childAt(place)) {
        InvasionPic_DragDrop();
    }
}

void PlanetBoard::InvasionPlayer_DragOver(int owner, int row) {
    if (owner == state.BoardPlayer || owner == AllPlanets) {
        return;
    }
    for (int index = 0; index <= MaxPlayers; ++index) {
        if (index == owner) {
            InvasionPlayer[index]->SetBackColour(DragMark);
        } else if (index != state.BoardPlayer) {
            InvasionPlayer[index]->SetBackColour(ButtonFace());
        }
    }
    Label(row).Name().SetBackColour(DragMark);
}

void PlanetBoard::InvasionPlayer_DragDrop(int owner, int row) {
    const int tag = rows[static_cast<std::size_t>(row)];
    if (!AcceptsDrop(state, owner, tag)) {
        return;
    }
    ClearPlanetMarks();
    InvasionPlayer[owner]->SetBackColour(ButtonFace());
    if (TransferPlanet(state, tag, owner)) {
        emit InputChanged();
        InvasionPlayer_Click(state.BoardPlayer);
    }
}

void PlanetBoard::InvasionPic_DragDrop() {
    ClearPlanetMarks();
    for (int index = 0; index <= MaxPlayers; ++index) {
        if (index != state.BoardPlayer) {
            InvasionPlayer[index]->SetBackColour(ButtonFace());
        }
    }
}

void PlanetBoard::ClearPlanetMarks() {
    for (BoardRow& row : labels) {
        row.Name().SetBackColour(ButtonFace());
    }
}

void PlanetBoard::Carry(int row, int step) {
    // Over the owners in the game, the pool first, round and round; never to the listed owner.
    const int owners = state.NumPlayers + 1;
    int next = carriedTo;
    do {
        next = next < 0 ? (step > 0 ? 0 : owners - 1) : (next + step + owners) % owners;
    } while (next == state.BoardPlayer);
    carriedTo = next;
    InvasionPlayer_DragOver(next, row);
    Label(row).SetNote(", over " + InvasionPlayer[next]->text());
}

void PlanetBoard::SetDown(int row) {
    Label(row).SetNote({});
    InvasionPlayer_DragDrop(std::exchange(carriedTo, -1), row);
}

void PlanetBoard::PutBack(int row) {
    Label(row).SetNote({});
    carriedTo = -1;
    InvasionPic_DragDrop();
}

} // namespace ksm
