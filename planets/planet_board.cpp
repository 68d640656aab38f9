#include "planets/planet_board.h"

#include "controls/caption_label.h"
#include "controls/element_name.h"
#include "controls/focus_group.h"
#include "controls/framed_bar.h"
#include "controls/look.h"
#include "controls/qt_values.h"
#include "controls/shape_frame.h"
#include "model/player_labels.h"
#include "planets/owner_place.h"

#include <QWheelEvent>

#include <algorithm>

namespace ksm {

PlanetBoard::PlanetBoard(GameState& game, QWidget* parent) : QWidget(parent), state(game) {
    NameAndPlace(*this, "InvasionPic", {163, 0, 172, 180}, "Planet board");
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
        auto* label =
            new CaptionLabel(ElementName("InvasionPlayer", owner), {0, top, 70, 14}, this);
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
        connect(name, &PlanetLabel::Pressed, this,
                [this, row](QPoint grip) { BeginDragging(row, grip); });
        connect(name, &PlanetLabel::MovedTo, this, &PlanetBoard::DragTo);
        connect(name, &PlanetLabel::ReleasedAt, this, &PlanetBoard::DropAt);
        connect(name, &PlanetLabel::Activated, this, [this, row] { PickUpOrSetDown(row); });
        connect(name, &PlanetLabel::Stepped, this,
                [this](int step) { IsCarrying() ? Carry(step) : planets->Move(step); });
        connect(name, &PlanetLabel::Abandoned, this, &PlanetBoard::PutBack);
        names << &rows.back().Name();
    }
    // A planet that is carried needs the arrow keys itself.
    planets = new FocusGroup(names, FocusGroup::Keys::None, this);
}

void PlanetBoard::ShowGame() {
    // The setup panel covers it; the focus must not get below.
    setEnabled(state.Game.Started());
    for (int player = 1; player <= state.Game.NumPlayers; ++player) {
        CaptionLabel* label = InvasionPlayer[player];
        label->move(0, TopOfOwner(player, state.Game.NumPlayers));
        label->SetCaption(QString::fromStdString(OwnerCaption(state.Game, player)));
    }
    ShowList();
    ShowMarks();
    ShowJourney();
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
        const QColor unmarked = owner == state.View.BoardPlayer ? highlight : ButtonFace();
        label->SetBackColour(owner == state.View.MarkedOwner ? dragMark : unmarked);
    }
    for (std::size_t row = 0; row < rows.size(); ++row) {
        rows[row].Name().SetBackColour(state.View.MarkedRows[row] ? dragMark : ButtonFace());
    }
}

QWidgetList PlanetBoard::PlayerControls(int player) const { return {InvasionPlayer.at(player)}; }

void PlanetBoard::InvasionPlayer_Click(int owner) {
    StopCarrying();
    ListOwner(state, owner);
    emit Changed();
}

// Also runs when the bar is moved to show the game.
void PlanetBoard::PlanetScroller_Change(int position) {
    if (position != state.View.BoardPosition) {
        StopCarrying();
        state.View.BoardPosition = position;
        emit Changed();
    }
}

// Over a planet, too, the wheel scrolls the list.
void PlanetBoard::wheelEvent(QWheelEvent* event) {
    static_cast<QObject*>(PlanetScroller)->event(event);
}

} // namespace ksm
