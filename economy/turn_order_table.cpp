#include "economy/turn_order_table.h"

#include "controls/caption_label.h"
#include "controls/look.h"

namespace ksm {

namespace {

constexpr QRect Panel{0, 0, 160, 180};
constexpr int RowHeight = 17;

struct Heading {
    const char* Caption;
    QRect Place;
    Qt::Alignment Alignment;
};

// "Res" and "Inf" stand over the middle of their columns.
constexpr std::array<Heading, 3> Headings{{
    {"Player", {16, 1, 64, 15}, Qt::AlignLeft},
    {"Res", {80, 1, 41, 15}, Qt::AlignHCenter},
    {"Inf", {121, 1, 39, 15}, Qt::AlignHCenter},
}};

void SetItalic(CaptionLabel& label, bool italic) {
    if (label.font().italic() != italic) {
        QFont font = label.font();
        font.setItalic(italic);
        label.setFont(font);
    }
}

} // namespace

TurnOrderTable::TurnOrderTable(const GameState& game, QWidget* parent)
    : QWidget(parent), state(game) {
    setObjectName("UpLefPic");
    setGeometry(Panel);
    for (const Heading& heading : Headings) {
        auto* label = new CaptionLabel(QString(), heading.Place, this);
        label->setFont(BoldFont());
        label->setAlignment(heading.Alignment | Qt::AlignVCenter);
        label->SetCaption(heading.Caption);
    }
    for (int number = 1; number <= MaxPlayers; ++number) {
        rows[number] = MakeRow(number);
    }
}

TurnOrderTable::Row TurnOrderTable::MakeRow(int number) {
    const int top = 17 + 16 * (number - 1);
    const auto cell = [&](const char* name, int left, int width, const char* caption) {
        auto* label =
            new CaptionLabel(ElementName(name, number), {left, top, width, RowHeight}, this);
        label->setAlignment(Qt::AlignHCenter | Qt::AlignVCenter);
        label->SetCaption(caption);
        return label;
    };
    const Row row{.PolPlay = cell("PolPlay", 16, 65, "Player"),
                  .PRes = cell("PRes", 88, 25, "0"),
                  .PInf = cell("PInf", 128, 25, "0")};
    row.PolPlay->setAlignment(Qt::AlignLeft | Qt::AlignVCenter);
    row.PRes->setFont(PlainFont(FigureText));
    row.PInf->setFont(PlainFont(FigureText));
    row.PolPlay->SetHeading(tr("Place %1").arg(number));
    row.PRes->SetHeading(tr("Resources, place %1").arg(number));
    row.PInf->SetHeading(tr("Influence, place %1").arg(number));
    return row;
}

void TurnOrderTable::ShowTurnOrder() {
    int number = 0;
    for (const TurnOrderRow& ranked : TurnOrder(state)) {
        const PlayerRecord& player = state.Player(ranked.Player);
        const Row& row = rows[++number];
        row.PolPlay->SetCaption(ToQString(player.Name));
        row.PRes->SetCaption(QString::number(player.Resources));
        row.PInf->SetCaption(QString::number(player.Influence));
        for (CaptionLabel* label : {row.PolPlay, row.PRes, row.PInf}) {
            SetItalic(*label, ranked.Italic);
        }
    }
}

void TurnOrderTable::ShowRow(int row, bool visible) {
    for (CaptionLabel* label : {rows[row].PolPlay, rows[row].PRes, rows[row].PInf}) {
        label->setVisible(visible);
    }
}

} // namespace ksm
