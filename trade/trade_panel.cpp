#include "trade/trade_panel.h"

#include "controls/caption_label.h"
#include "controls/element_name.h"
#include "controls/even_drawing.h"
#include "controls/focus_group.h"
#include "controls/look.h"
#include "controls/message_label.h"
#include "controls/qt_values.h"
#include "controls/shape_frame.h"
#include "economy/recompute.h"
#include "trade/ring.h"
#include "trade/trade_agreements.h"
#include "trade/trade_selection.h"
#include "trade/trade_text.h"

#include <QPainter>
#include <QPushButton>

#include <algorithm>

namespace ksm {

namespace {

// A line of any player's colour can be told from it, and black text reads well on it.
constexpr QColor Background{0xB8, 0xC0, 0xCA};

} // namespace

TradePanel::TradePanel(Game& shown, QWidget* parent) : QWidget(parent), game(shown) {
    NameAndPlace(*this, "TradePic", {338, 0, 300, 180}, "Trade");
    SetColour(*this, QPalette::Window, Background);
    setAutoFillBackground(true);
    new ShapeFrame("TradeShape", rect(), 0, this);
    // The order of the Tab key.
    MakeButtons();
    MakeLabels();
}

void TradePanel::MakeLabels() {
    for (int player = 1; player <= MaxPlayers; ++player) {
        auto* label = new CaptionLabel(ElementName("TradePlayer", player), {0, 0, 30, 18}, this);
        label->SetAlignment(Qt::AlignCenter);
        label->SetHeading(QString("Trade, Player %1").arg(player));
        label->SetExplanation([this, player] { return TradeText(game, player); });
        label->MakeClickable();
        connect(label, &CaptionLabel::Clicked, this, [this, player] { TradePlayer_Click(player); });
        TradePlayer[player] = label;
    }
    new FocusGroup({TradePlayer.begin(), TradePlayer.end()}, FocusGroup::Keys::Arrows, this);
    TradeNumber = new CaptionLabel("TradeNumber", {28, 2, 193, 19}, this);
    TradeNumber->SetAlignment(Qt::AlignCenter);
    TInfo = new MessageLabel("TInfo", {220, 112, 73, 57}, this);
}

void TradePanel::MakeButtons() {
    AddTAbutton = MakeButton("AddTAbutton", "Add", 16);
    RemoveTAButton = MakeButton("RemoveTAButton", "Remove", 48);
    connect(AddTAbutton, &QPushButton::clicked, this, &TradePanel::AddTAbutton_Click);
    connect(RemoveTAButton, &QPushButton::clicked, this, &TradePanel::RemoveTAButton_Click);
}

QPushButton* TradePanel::MakeButton(const char* name, const char* caption, int top) {
    auto* button = new QPushButton(caption, this);
    NameAndPlace(*button, name, {230, top, 65, 25});
    return button;
}

void TradePanel::AddTAbutton_Click() {
    BeginAdding(game);
    emit Changed();
}

void TradePanel::RemoveTAButton_Click() {
    BeginRemoving(game);
    emit Changed();
}

void TradePanel::TradePlayer_Click(int player) {
    if (PickPlayer(game, player)) {
        Recompute(game);
    }
    emit Changed();
}

void TradePanel::ShowGame() {
    for (int player = 1; player <= game.NumPlayers; ++player) {
        ShowPlayer(player);
    }
    TradeNumber->SetCaption(QString::fromStdString(TradeCountSentence(game.TradeCount)));
    TInfo->SetCaption(QString::fromStdString(game.TradeInfo));
    ShowDiagram();
}

void TradePanel::ShowPlayer(int player) {
    const PlayerRecord& record = game.Player(player);
    CaptionLabel* label = TradePlayer[player];
    label->move(ToQPoint(PlaceInRing(player, record.TradeRing)));
    label->SetCaption(QString::fromStdString(record.ShortName));
    label->SetColours(record.TradeColours);
}

// A line covers those drawn before it: what follows the first that differs is painted anew.
void TradePanel::ShowDiagram() {
    const auto [old, drawn] = std::ranges::mismatch(shownStrokes, game.TradeStrokes);
    PaintAnew({old, shownStrokes.end()});
    PaintAnew({drawn, game.TradeStrokes.end()});
    shownStrokes = game.TradeStrokes;
}

void TradePanel::PaintAnew(std::span<const Stroke> strokes) {
    for (const Stroke& stroke : strokes) {
        const int edge = stroke.Width;
        update(QRect(ToQPoint(stroke.From), ToQPoint(stroke.To))
                   .normalized()
                   .adjusted(-edge, -edge, edge, edge));
    }
}

QWidgetList TradePanel::PlayerControls(int player) const { return {TradePlayer[player]}; }

void TradePanel::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    for (const Stroke& stroke : shownStrokes) {
        DrawEvenLine(painter, ToQPoint(stroke.From), ToQPoint(stroke.To), stroke.Width,
                     ToQColor(stroke.Colour));
    }
}

} // namespace ksm
