#include "economy/turn_order_table.h"

#include "controls/caption_label.h"
#include "controls/element_name.h"
#include "controls/look.h"
#include "economy/explanation.h"

#include <algorithm>

namespace ksm {

struct TurnOrderColumn {
    const char* Name = "";
    int Left = 0;
    int Width = 0;
    Qt::Alignment Alignment;
    const char* Meaning = "";
    // Of the heading, which stands over the middle of figures.
    const char* Heading = "";
    QRect Place;
};

namespace {

constexpr std::array<TurnOrderColumn, 3> Columns{{
    {"PolPlay", 16, 65, Qt::AlignLeft, "Place %1", "Player", {16, 1, 64, 15}},
    {"PRes", 88, 25, Qt::AlignHCenter, "Resources, place %1", "Res", {80, 1, 41, 15}},
    {"PInf", 128, 25, Qt::AlignHCenter, "Influence, place %1", "Inf", {121, 1, 39, 15}},
}};

} // namespace

TurnOrderTable::TurnOrderTable(const Game& shown, QWidget* parent) : QWidget(parent), game(shown) {
    NameAndPlace(*this, "UpLefPic", {0, 0, 160, 180}, "Order of play");
    for (const TurnOrderColumn& column : Columns) {
        auto* label = new CaptionLabel(QString(), column.Place, this);
        label->setFont(BoldFont());
        label->SetAlignment(column.Alignment | Qt::AlignVCenter);
        label->SetCaption(column.Heading);
    }
    for (int number = 1; number <= MaxPlayers; ++number) {
        std::ranges::transform(Columns, rows[number].begin(), [&](const TurnOrderColumn& column) {
            return MakeCell(column, number);
        });
    }
}

CaptionLabel* TurnOrderTable::MakeCell(const TurnOrderColumn& column, int number) {
    const QRect place(column.Left, 17 + 16 * (number - 1), column.Width, 17);
    auto* cell = new CaptionLabel(ElementName(column.Name, number), place, this);
    cell->SetAlignment(column.Alignment | Qt::AlignVCenter);
    cell->SetHeading(QString(column.Meaning).arg(number));
    cell->SetExplanation([this, number] { return RankText(game, number); });
    if (column.Alignment == Qt::AlignHCenter) {
        cell->setFont(PlainFont(FigureText));
        cell->SetSmallestText(8);
    } else {
        // Who moves next is read from across the table: rather an ellipsis than small letters.
        cell->SetSmallestText(SmallText);
    }
    return cell;
}

void TurnOrderTable::ShowGame() {
    // The setup panel covers it; the focus must not get below.
    setEnabled(game.Started());
    for (int number = 1; number <= game.NumPlayers; ++number) {
        const TurnOrderRow& ranked = game.TurnOrderRows.at(static_cast<std::size_t>(number - 1));
        const auto& [PolPlay, PRes, PInf] = rows[number];
        PolPlay->SetCaption(QString::fromStdString(ranked.Name));
        PRes->SetCaption(QString::number(ranked.Resources));
        PInf->SetCaption(QString::number(ranked.Influence));
        for (CaptionLabel* label : rows[number]) {
            QFont font = label->font();
            font.setItalic(ranked.Italic);
            label->setFont(font);
        }
    }
}

QWidgetList TurnOrderTable::PlayerControls(int row) const {
    return {rows[row].begin(), rows[row].end()};
}

} // namespace ksm
