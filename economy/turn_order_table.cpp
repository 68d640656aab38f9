#include "economy/turn_order_table.h"

#include "controls/caption_label.h"
#include "controls/element_name.h"
#include "controls/look.h"
#include "economy/explanation.h"

namespace ksm {

namespace {

constexpr QRect Panel{0, 0, 160, 180};
constexpr int RowHeight = 17;

struct Heading {
    const char* Caption = "";
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

TurnOrderTable::TurnOrderTable(const Game& shown, QWidget* parent) : QWidget(parent), game(shown) {
    setObjectName("UpLefPic");
    setAccessibleName("Order of play");
    setGeometry(Panel);
    for (const Heading& heading : Headings) {
        auto* label = new CaptionLabel(QString(), heading.Place, this);
        label->setFont(BoldFont());
        label->SetAlignment(heading.Alignment | Qt::AlignVCenter);
        label->SetCaption(heading.Caption);
    }
    for (int number = 1; number <= MaxPlayers; ++number) {
        rows[number] = MakeRow(number);
    }
}

TurnOrderTable::Row TurnOrderTable::MakeRow(int number) {
    const int top = 17 + 16 * (number - 1);
    const auto cell = [&](const char* name, int left, int width) {
        auto* label =
            new CaptionLabel(ElementName(name, number), {left, top, width, RowHeight}, this);
        label->SetAlignment(Qt::AlignCenter);
        return label;
    };
    const Row row{.PolPlay = cell("PolPlay", 16, 65),
                  .PRes = cell("PRes", 88, 25),
                  .PInf = cell("PInf", 128, 25)};
    row.PolPlay->SetAlignment(Qt::AlignLeft | Qt::AlignVCenter);
    // Who moves next is read from across the table: rather an ellipsis than small letters.
    row.PolPlay->SetSmallestText(SmallText);
    row.PRes->setFont(PlainFont(FigureText));
    row.PInf->setFont(PlainFont(FigureText));
    row.PolPlay->SetHeading(tr("Place %1").arg(number));
    row.PRes->SetHeading(tr("Resources, place %1").arg(number));
    row.PInf->SetHeading(tr("Influence, place %1").arg(number));
    for (CaptionLabel* label : {row.PolPlay, row.PRes, row.PInf}) {
        label->SetExplanation([this, number] { return RankText(game, number); });
    }
    for (CaptionLabel* figure : {row.PRes, row.PInf}) {
        figure->SetSmallestText(8);
    }
    return row;
}

void TurnOrderTable::ShowGame() {
    // The setup panel covers it; the focus must not get below.
    setEnabled(game.Started());
    for (int number = 1; number <= game.NumPlayers; ++number) {
        const TurnOrderRow& ranked = game.TurnOrderRows.at(static_cast<std::size_t>(number - 1));
        const Row& row = rows[number];
        row.PolPlay->SetCaption(QString::fromStdString(ranked.Name));
        row.PRes->SetCaption(QString::number(ranked.Resources));
        row.PInf->SetCaption(QString::number(ranked.Influence));
        for (CaptionLabel* label : {row.PolPlay, row.PRes, row.PInf}) {
            SetItalic(*label, ranked.Italic);
        }
    }
}

QWidgetList TurnOrderTable::PlayerControls(int row) const {
    return {rows[row].PolPlay, rows[row].PRes, rows[row].PInf};
}

} // namespace ksm
