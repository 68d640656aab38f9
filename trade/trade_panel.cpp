#include "trade/trade_panel.h"

#include "app/layout.h"
#include "controls/caption_label.h"
#include "controls/look.h"
#include "controls/shape_frame.h"
#include "trade/message_label.h"

#include <QPainter>
#include <QPushButton>

namespace ksm {

namespace {

constexpr QRect Panel{338, 0, 300, 180};
constexpr QSize LabelSize{30, 18};
// From a label's top left corner to where its lines end, below the label.
constexpr QPoint Anchor{15, 8};
// A line of any player's colour can be told from it, and black text reads well on it.
constexpr QColor Background{0x8F, 0x9D, 0xB5};

QPoint ToQPoint(Point point) {
    return {point.X, point.Y};
}

} // namespace

TradePanel::TradePanel(GameState& game, QWidget* parent) : QWidget(parent), state(game) {
    setObjectName("TradePic");
    setGeometry(Panel);
    QPalette painted = palette();
    painted.setColor(QPalette::Window, Background);
    setPalette(painted);
    setAutoFillBackground(true);
    new ShapeFrame("TradeShape", rect(), 0, this);
    MakeLabels();
    MakeButtons();
}

void TradePanel::MakeLabels() {
    for (int player = 1; player <= MaxPlayers; ++player) {
        const RingPlace place = PlaceInRing(player, MaxPlayers);
        auto* label = new CaptionLabel(ElementName("TradePlayer", player),
                                       {{place.Left, place.Top}, LabelSize}, this);
        label->setAlignment(Qt::AlignHCenter | Qt::AlignVCenter);
        label->MakeClickable();
        connect(label, &CaptionLabel::Clicked, this,
                [this, player] { Apply(TradePlayer_Click(state, player)); });
        TradePlayer[player] = label;
        ShowPlayer(player);
    }
    TradeNumber = new CaptionLabel("TradeNumber", {28, 2, 193, 19}, this);
    TradeNumber->setAlignment(Qt::AlignHCenter | Qt::AlignVCenter);
    TradeNumber->SetCaption("There are no Trade Agreements in play.");
    TInfo = new MessageLabel("TInfo", {220, 112, 73, 57}, this);
    ShowInfo();
    NameLabels();
}

void TradePanel::MakeButtons() {
    AddTAbutton = new QPushButton("Add", this);
    AddTAbutton->setObjectName("AddTAbutton");
    AddTAbutton->setGeometry(230, 16, 65, 25);
    RemoveTAButton = new QPushButton("Remove", this);
    RemoveTAButton->setObjectName("RemoveTAButton");
    RemoveTAButton->setGeometry(230, 48, 65, 25);
    connect(AddTAbutton, &QPushButton::clicked, this, [this] {
        AddTAbutton_Click(state);
        ShowInfo();
    });
    connect(RemoveTAButton, &QPushButton::clicked, this, [this] {
        RemoveTAButton_Click(state);
        ShowInfo();
    });
}

void TradePanel::Apply(const TradeOutcome& outcome) {
    ShowInfo();
    if (outcome.ValuesChange) {
        emit InputChanged();
    }
    switch (outcome.Diagram) {
    case DiagramChange::None:
        break;
    case DiagramChange::AddLine:
        diagram.DrawTradeLine(state, Anchors(), outcome.From, outcome.To);
        NameLabels();
        update();
        break;
    case DiagramChange::Redraw:
        RedrawTradeDiagram();
        break;
    }
}

void TradePanel::RedrawTradeDiagram() {
    diagram.RedrawTradeDiagram(state, Anchors());
    NameLabels();
    update();
}

void TradePanel::NameLabels() {
    for (int player = 1; player <= MaxPlayers; ++player) {
        QString heading = QString("Trade, Player %1").arg(player);
        for (int partner = 1; partner <= MaxPlayers; ++partner) {
            if (HaveAgreement(state, player, partner)) {
                heading += QString(", agreement with Player %1").arg(partner);
            }
        }
        TradePlayer[player]->SetHeading(heading);
    }
}

void TradePanel::ShowGame() {
    ShowInfo();
    RedrawTradeDiagram();
}

TradeAnchors TradePanel::Anchors() const {
    TradeAnchors anchors;
    for (int player = 1; player <= MaxPlayers; ++player) {
        const QPoint place = TradePlayer[player]->pos() + Anchor;
        anchors[player] = {place.x(), place.y()};
    }
    return anchors;
}

void TradePanel::PlaceLabels() {
    for (int player = 1; player <= MaxPlayers; ++player) {
        const RingPlace place = PlaceInRing(player, state.Controls[player].TradeRing);
        TradePlayer[player]->move(place.Left, place.Top);
    }
}

void TradePanel::ShowLabel(int player, bool visible) {
    TradePlayer[player]->setVisible(visible);
}

void TradePanel::ShowPlayer(int player) {
    const PlayerControls& controls = state.Controls[player];
    TradePlayer[player]->SetCaption(ToQString(controls.ShortName));
    TradePlayer[player]->SetColours(controls.TradeColours);
}

void TradePanel::ShowValues() {
    TradeNumber->SetCaption(ToQString(TradeCountSentence(state.TradeCount)));
}

void TradePanel::ShowInfo() {
    TInfo->SetCaption(ToQString(state.TradeInfo));
}

void TradePanel::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    for (const Stroke& stroke : diagram.Strokes()) {
        painter.setPen(QPen(ToQColor(stroke.Colour), stroke.Width, Qt::SolidLine, Qt::RoundCap));
        painter.drawLine(ToQPoint(stroke.From), ToQPoint(stroke.To));
    }
}

} // namespace ksm
