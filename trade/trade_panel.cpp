#include "trade/trade_panel.h"

#include "controls/caption_label.h"
#include "controls/element_name.h"
#include "controls/even_drawing.h"
#include "controls/focus_group.h"
#include "controls/message_label.h"
#include "controls/qt_values.h"
#include "controls/shape_frame.h"
#include "trade/ring.h"
#include "trade/trade_diagram.h"
#include "trade/trade_text.h"

#include <QPainter>
#include <QPushButton>

namespace ksm {

namespace {

constexpr QRect Panel{338, 0, 300, 180};
constexpr QSize LabelSize{30, 18};
// A line of any player's colour can be told from it, and black text reads well on it.
constexpr QColor Background{0xB8, 0xC0, 0xCA};

} // namespace

TradePanel::TradePanel(Game& shown, QWidget* parent) : QWidget(parent), game(shown) {
    setObjectName("TradePic");
    setAccessibleName("Trade");
    setGeometry(Panel);
    QPalette painted = palette();
    painted.setColor(QPalette::Window, Background);
    setPalette(painted);
    setAutoFillBackground(true);
    new ShapeFrame("TradeShape", rect(), 0, this);
    // The order of the Tab key.
    MakeButtons();
    MakeLabels();
}

void TradePanel::MakeLabels() {
    for (int player = 1; player <= MaxPlayers; ++player) {
        auto* label =
            new CaptionLabel(ElementName("TradePlayer", player), {QPoint(), LabelSize}, this);
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
    button->setObjectName(name);
    button->setGeometry(230, top, 65, 25);
    return button;
}

void TradePanel::AddTAbutton_Click() {
    ksm::AddTAbutton_Click(game);
    Apply({});
}

void TradePanel::RemoveTAButton_Click() {
    ksm::RemoveTAButton_Click(game);
    Apply({});
}

void TradePanel::TradePlayer_Click(int player) {
    Apply(ksm::TradePlayer_Click(game, player));
}

void TradePanel::Apply(const TradeOutcome& outcome) {
    ShowInfo();
    if (outcome.ValuesChange) {
        emit InputChanged();
    }
    // A new line covers the others; where all are drawn anew, the old ones go.
    const bool anew = outcome.Diagram == DiagramChange::Redraw;
    const std::size_t first = anew ? 0 : game.TradeStrokes.size();
    ShowStrokes(std::span(game.TradeStrokes).subspan(first));
    DrawOutcome(game, outcome);
    ShowStrokes(std::span(game.TradeStrokes).subspan(first));
    emit Changed();
}

void TradePanel::PlaceLabel(int player) {
    const Point place = PlaceInRing(player, game.Player(player).TradeRing);
    TradePlayer[player]->move(place.X, place.Y);
}

void TradePanel::SetLabelVisible(int player, bool visible) {
    TradePlayer[player]->setVisible(visible);
}

void TradePanel::ShowDiagram() {
    update();
}

void TradePanel::ShowStrokes(std::span<const Stroke> strokes) {
    for (const Stroke& stroke : strokes) {
        const int edge = stroke.Width;
        update(QRect(ToQPoint(stroke.From), ToQPoint(stroke.To))
                   .normalized()
                   .adjusted(-edge, -edge, edge, edge));
    }
}

void TradePanel::ShowInfo() {
    TInfo->SetCaption(QString::fromStdString(game.TradeInfo));
}

void TradePanel::ShowPlayer(int player) {
    const PlayerRecord& record = game.Player(player);
    TradePlayer[player]->SetCaption(QString::fromStdString(record.ShortName));
    TradePlayer[player]->SetColours(record.TradeColours);
}

void TradePanel::ShowValues() {
    TradeNumber->SetCaption(QString::fromStdString(TradeCountSentence(game.TradeCount)));
}

void TradePanel::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    for (const Stroke& stroke : game.TradeStrokes) {
        DrawEvenLine(painter, ToQPoint(stroke.From), ToQPoint(stroke.To), stroke.Width,
                     ToQColor(stroke.Colour));
    }
}

} // namespace ksm
